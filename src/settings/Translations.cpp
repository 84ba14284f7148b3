// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"

#include "settings/Product.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

namespace {
const QString delimiters = QStringLiteral("_");
const QString suffix = QStringLiteral(".qm");
const QString sourceLanguage = QStringLiteral("it_IT");

// An empty translator, which translates nothing, when no file is found.
std::unique_ptr<QTranslator> loaded(const QString &baseName, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    translator->load(baseName, folder, delimiters, suffix);
    return translator;
}
} // namespace

bool GUtils::loadTranslations(const QString &locale)
{
    for (const auto *installed : {&m_toolkitTranslator, &m_programTranslator}) {
        if (*installed) {
            QCoreApplication::removeTranslator(installed->get());
        }
    }
    m_toolkitTranslator =
        loaded(QStringLiteral("qt_") + locale, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    QCoreApplication::installTranslator(m_toolkitTranslator.get());
    m_programTranslator =
        loaded(Product::nameText() + delimiters + locale, QDir::currentPath() + QStringLiteral("/language/"));
    return QCoreApplication::installTranslator(m_programTranslator.get());
}

QString GUtils::shownLanguage() const
{
    return m_programTranslator->isEmpty() ? sourceLanguage : m_programTranslator->language();
}

QString shownLanguage()
{
    return globalUtils == nullptr ? sourceLanguage : globalUtils->shownLanguage();
}
