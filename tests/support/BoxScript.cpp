// SPDX-License-Identifier: MIT
#include "support/BoxScript.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFontDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>

namespace {
QString described(const QWidget *dialog)
{
    const auto *box = qobject_cast<const QMessageBox *>(dialog);
    return QStringLiteral("%1 [%2] %3")
        .arg(QString::fromLatin1(dialog->metaObject()->className()), dialog->windowTitle(),
             box != nullptr ? box->text() : QString());
}

bool isScripted(const QWidget *widget)
{
    return qobject_cast<const QMessageBox *>(widget) != nullptr ||
           qobject_cast<const QFileDialog *>(widget) != nullptr || qobject_cast<const QFontDialog *>(widget) != nullptr;
}

QString press(QMessageBox *box, QMessageBox::StandardButton answer)
{
    if (answer == QMessageBox::Escape) {
        return box->close() ? QString() : QStringLiteral("cannot be closed by its title bar");
    }
    QAbstractButton *button = box->button(answer);
    if (button == nullptr) {
        box->reject();
        return QStringLiteral("has no button %1").arg(static_cast<int>(answer), 0, 16);
    }
    button->click();
    return QString();
}
} // namespace

BoxScript::BoxScript(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    qApp->installEventFilter(this);
}

BoxScript::~BoxScript()
{
    qApp->removeEventFilter(this);
    const QStringList wrong = problems();
    QTest::qVerify(wrong.isEmpty(), "boxes came as scripted", qPrintable(wrong.join(QLatin1Char('\n'))), __FILE__,
                   __LINE__);
}

void BoxScript::expectBox(const QString &title, const QString &text, QMessageBox::StandardButton answer,
                          QMessageBox::Icon icon)
{
    const auto play = [=](QWidget *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        if (box == nullptr || box->windowTitle() != title || box->text() != text) {
            return QStringLiteral("is not the one expected");
        }
        if (icon != QMessageBox::NoIcon && box->icon() != icon) {
            return QStringLiteral("has icon %1 instead of %2").arg(box->icon()).arg(icon);
        }
        return press(box, answer);
    };
    m_steps.push_back({QStringLiteral("box [%1] %2").arg(title, text), play});
}

void BoxScript::expectBox(const QString &title, const QString &text, QMessageBox::StandardButton answer,
                          std::function<void(QMessageBox *)> look)
{
    const auto play = [=](QWidget *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        if (box == nullptr || box->windowTitle() != title || box->text() != text) {
            return QStringLiteral("is not the one expected");
        }
        look(box);
        return press(box, answer);
    };
    m_steps.push_back({QStringLiteral("box [%1] %2").arg(title, text), play});
}

void BoxScript::expectBox(const QString &title, QMessageBox::StandardButton answer,
                          std::function<void(QMessageBox *)> look)
{
    const auto play = [=](QWidget *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        if (box == nullptr || box->windowTitle() != title) {
            return QStringLiteral("is not the one expected");
        }
        look(box);
        return press(box, answer);
    };
    m_steps.push_back({QStringLiteral("box [%1]").arg(title), play});
}

void BoxScript::expectFileDialog(const QString &caption, const QString &path)
{
    expectFileDialog(caption, path, [](QWidget *) {});
}

void BoxScript::expectFileDialog(const QString &caption, const QString &path, std::function<void(QWidget *)> look)
{
    const auto play = [=](QWidget *dialog) {
        auto *chooser = qobject_cast<QFileDialog *>(dialog);
        if (chooser == nullptr || chooser->windowTitle() != caption) {
            return QStringLiteral("is not the one expected");
        }
        look(chooser);
        if (path.isEmpty()) {
            chooser->reject();
            return QString();
        }
        chooser->selectFile(path);
        static_cast<QDialog *>(chooser)->accept();
        return QString();
    };
    m_steps.push_back({QStringLiteral("file dialog [%1]").arg(caption), play});
}

void BoxScript::expectFontDialog(const QFont &font)
{
    expectFontDialog([font](QFontDialog *dialog) { dialog->setCurrentFont(font); });
}

void BoxScript::expectFontDialog(std::function<void(QFontDialog *)> choose)
{
    const auto play = [=](QWidget *dialog) {
        auto *chooser = qobject_cast<QFontDialog *>(dialog);
        if (chooser == nullptr) {
            return QStringLiteral("is not the one expected");
        }
        choose(chooser);
        chooser->accept();
        return QString();
    };
    m_steps.push_back({QStringLiteral("font dialog"), play});
}

void BoxScript::expectFontDialogCancelled()
{
    const auto play = [](QWidget *dialog) {
        auto *chooser = qobject_cast<QFontDialog *>(dialog);
        if (chooser == nullptr) {
            return QStringLiteral("is not the one expected");
        }
        chooser->reject();
        return QString();
    };
    m_steps.push_back({QStringLiteral("font dialog"), play});
}

QStringList BoxScript::problems() const
{
    QStringList all = m_problems;
    for (size_t i = m_next; i < m_steps.size(); ++i) {
        all.append(QStringLiteral("never came: %1").arg(m_steps[i].description));
    }
    return all;
}

bool BoxScript::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType()) {
        auto *dialog = static_cast<QWidget *>(watched);
        if (dialog->isWindow() && isScripted(dialog)) {
            // Answered from the event loop, once the dialog runs its own.
            const QPointer<QWidget> shown = dialog;
            QTimer::singleShot(0, this, [this, shown]() {
                if (!shown.isNull()) {
                    meet(shown);
                }
            });
        }
    }
    return QObject::eventFilter(watched, event);
}

void BoxScript::meet(QWidget *dialog)
{
    const QString what = described(dialog);
    if (m_next == m_steps.size()) {
        m_problems.append(QStringLiteral("unexpected: %1").arg(what));
        static_cast<QDialog *>(dialog)->reject();
        return;
    }
    const Step &step = m_steps[m_next++];
    const QPointer<QWidget> shown = dialog;
    const QString wrong = step.play(dialog);
    if (wrong.isEmpty()) {
        ++m_answered;
        return;
    }
    m_problems.append(QStringLiteral("%1 %2: %3").arg(what, wrong, step.description));
    if (!shown.isNull()) {
        static_cast<QDialog *>(dialog)->reject();
    }
}
