// SPDX-License-Identifier: MIT
#include "generation/DefaultCell.h"

#include "settings/Config.h"
#include "support/LogCapture.h"
#include "support/MemoryLimit.h"
#include "support/ScratchFolder.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QTest>

#include <memory>

namespace {
// A file of one colour that has the same size in every colour.
QByteArray bitmap(const QColor &color)
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "BMP");
    return bytes;
}
} // namespace

class tst_DefaultCell final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theTextFollowsTheConfiguration();
    void theDefaultPictureIsShared();
    void theDefaultPictureFollowsItsFile();
    void aNewerFileOfTheSameSizeIsRead();
    void theDefaultPictureFollowsTheConfiguration();
    void withoutADefaultPictureItIsNull();
    void withoutAConfigurationThereIsNothing();
    void withoutMemoryItIsNullUntilThereIsSome();

private:
    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<CurrentConfig> m_config;
};

void tst_DefaultCell::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_config = std::make_unique<CurrentConfig>(QCoreApplication::instance());
    globalConfig->defaultCellImage = m_folder->path(QStringLiteral("default.png"));
}

void tst_DefaultCell::cleanup()
{
    m_config.reset();
    m_folder.reset();
}

void tst_DefaultCell::theTextFollowsTheConfiguration()
{
    globalConfig->defaultCellText = QStringLiteral("Jolly!");
    QCOMPARE(DefaultCell::text(), QStringLiteral("Jolly!"));
    globalConfig->defaultCellText = QString();
    QCOMPARE(DefaultCell::text(), QString());
}

void tst_DefaultCell::theDefaultPictureIsShared()
{
    m_folder->writePicture(QStringLiteral("default.png"), QSize(7, 5), Qt::red);
    const QImage first = DefaultCell::image();
    QVERIFY(!first.isNull());
    QCOMPARE(DefaultCell::image().cacheKey(), first.cacheKey());
    QCOMPARE(DefaultCell::image().constBits(), first.constBits());
}

void tst_DefaultCell::theDefaultPictureFollowsItsFile()
{
    m_folder->writePicture(QStringLiteral("default.png"), QSize(7, 5), Qt::red);
    QCOMPARE(DefaultCell::image().size(), QSize(7, 5));

    m_folder->writePicture(QStringLiteral("default.png"), QSize(300, 200), Qt::blue);
    QCOMPARE(DefaultCell::image().size(), QSize(300, 200));
}

void tst_DefaultCell::aNewerFileOfTheSameSizeIsRead()
{
    m_folder->write(QStringLiteral("default.png"), bitmap(Qt::red));
    QCOMPARE(DefaultCell::image().pixelColor(0, 0), QColor(Qt::red));

    m_folder->write(QStringLiteral("default.png"), bitmap(Qt::green));
    QFile file(m_folder->path(QStringLiteral("default.png")));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(DefaultCell::image().pixelColor(0, 0), QColor(Qt::green));
}

void tst_DefaultCell::theDefaultPictureFollowsTheConfiguration()
{
    m_folder->writePicture(QStringLiteral("default.png"), QSize(7, 5), Qt::red);
    m_folder->writePicture(QStringLiteral("other.png"), QSize(7, 5), Qt::blue);
    QCOMPARE(DefaultCell::image().pixelColor(0, 0), QColor(Qt::red));
    globalConfig->defaultCellImage = m_folder->path(QStringLiteral("other.png"));
    QCOMPARE(DefaultCell::image().pixelColor(0, 0), QColor(Qt::blue));
}

void tst_DefaultCell::withoutADefaultPictureItIsNull()
{
    QVERIFY(DefaultCell::image().isNull());
    m_folder->writePicture(QStringLiteral("default.png"), QSize(7, 5), Qt::red);
    QVERIFY(!DefaultCell::image().isNull());
    QVERIFY(QFile::remove(m_folder->path(QStringLiteral("default.png"))));
    QVERIFY(DefaultCell::image().isNull());
}

void tst_DefaultCell::withoutAConfigurationThereIsNothing()
{
    m_folder->writePicture(QStringLiteral("default.png"), QSize(7, 5), Qt::red);
    QCOMPARE(DefaultCell::imagePath(), m_folder->path(QStringLiteral("default.png")));
    m_config.reset();
    QCOMPARE(DefaultCell::text(), QString());
    QCOMPARE(DefaultCell::imagePath(), QString());
    QVERIFY(DefaultCell::image().isNull());
}

void tst_DefaultCell::withoutMemoryItIsNullUntilThereIsSome()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    QImage picture(10000, 8000, QImage::Format_Mono);
    picture.fill(0);
    QVERIFY(picture.save(m_folder->path(QStringLiteral("default.png"))));
    {
        const LogCapture log;
        const MemoryLimit limit(8 << 20);
        QVERIFY(DefaultCell::image().isNull());
        QVERIFY(log.warnings().join(QString()).startsWith(QStringLiteral("DefaultCell::image(): no memory for ")));
    }
    QCOMPARE(DefaultCell::image().size(), picture.size());
}

QTEST_GUILESS_MAIN(tst_DefaultCell)
#include "tst_DefaultCell.moc"
