// SPDX-License-Identifier: MIT
#include "generation/CellImage.h"

#include "settings/Config.h"
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

// A JPEG file 40 wide and 20 high, red at the left and blue at the right, whose camera noted that it must be turned a
// quarter clockwise.
QByteArray jpegLyingOnItsSide()
{
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    for (int y = 0; y < 20; ++y) {
        for (int x = 20; x < 40; ++x) {
            picture.setPixelColor(x, y, Qt::blue);
        }
    }
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "JPEG", 100);

    // Big-endian TIFF header and a directory of one entry: orientation (0x0112), a short, once, value 6.
    const QByteArray exif = QByteArray("Exif\0\0"
                                       "MM\0\x2a\0\0\0\x08"
                                       "\0\x01"
                                       "\x01\x12\0\x03\0\0\0\x01\0\x06\0\0"
                                       "\0\0\0\0",
                                       32);
    QByteArray segment = QByteArray("\xff\xe1\0", 3);
    segment.append(static_cast<char>(exif.size() + 2));
    segment.append(exif);
    return jpeg.insert(2, segment); // after the start marker
}
} // namespace

class tst_CellImage final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aPictureIsRead();
    void aPictureLyingOnItsSideIsTurnedUpright();
    void whatIsNoPictureIsANullImage();
    void theDefaultPictureIsShared();
    void theDefaultPictureFollowsItsFile();
    void aNewerFileOfTheSameSizeIsRead();
    void theDefaultPictureFollowsTheConfiguration();
    void withoutADefaultPictureItIsNull();

private:
    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<Config> m_config;
};

void tst_CellImage::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_config = std::make_unique<Config>(QCoreApplication::instance());
    globalConfig = m_config.get();
    globalConfig->defaultCellImage = m_folder->path(QStringLiteral("default.png"));
}

void tst_CellImage::cleanup()
{
    globalConfig = nullptr;
    m_config.reset();
    m_folder.reset();
}

void tst_CellImage::aPictureIsRead()
{
    m_folder->writePicture(QStringLiteral("red.png"), QSize(7, 5), Qt::red);
    const QImage picture = loadCellImage(m_folder->path(QStringLiteral("red.png")));
    QCOMPARE(picture.size(), QSize(7, 5));
    QCOMPARE(picture.pixelColor(3, 3), QColor(Qt::red));
}

void tst_CellImage::aPictureLyingOnItsSideIsTurnedUpright()
{
    m_folder->write(QStringLiteral("phone.jpg"), jpegLyingOnItsSide());
    const QImage picture = loadCellImage(m_folder->path(QStringLiteral("phone.jpg")));
    QCOMPARE(picture.size(), QSize(20, 40));
    const QColor top = picture.pixelColor(10, 3);
    const QColor bottom = picture.pixelColor(10, 36);
    QVERIFY(top.red() > 200 && top.blue() < 50);
    QVERIFY(bottom.blue() > 200 && bottom.red() < 50);
}

void tst_CellImage::whatIsNoPictureIsANullImage()
{
    m_folder->write(QStringLiteral("text.png"), QByteArrayLiteral("no picture"));
    QVERIFY(loadCellImage(m_folder->path(QStringLiteral("text.png"))).isNull());
    QVERIFY(loadCellImage(m_folder->path(QStringLiteral("missing.png"))).isNull());
    QVERIFY(loadCellImage(QString()).isNull());
}

void tst_CellImage::theDefaultPictureIsShared()
{
    m_folder->writePicture(QStringLiteral("default.png"), QSize(7, 5), Qt::red);
    const QImage first = defaultCellImage();
    QVERIFY(!first.isNull());
    QCOMPARE(defaultCellImage().cacheKey(), first.cacheKey());
    QCOMPARE(defaultCellImage().constBits(), first.constBits());
}

void tst_CellImage::theDefaultPictureFollowsItsFile()
{
    m_folder->writePicture(QStringLiteral("default.png"), QSize(7, 5), Qt::red);
    QCOMPARE(defaultCellImage().size(), QSize(7, 5));

    m_folder->writePicture(QStringLiteral("default.png"), QSize(300, 200), Qt::blue);
    QCOMPARE(defaultCellImage().size(), QSize(300, 200));
}

void tst_CellImage::aNewerFileOfTheSameSizeIsRead()
{
    m_folder->write(QStringLiteral("default.png"), bitmap(Qt::red));
    QCOMPARE(defaultCellImage().pixelColor(0, 0), QColor(Qt::red));

    m_folder->write(QStringLiteral("default.png"), bitmap(Qt::green));
    QFile file(m_folder->path(QStringLiteral("default.png")));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(defaultCellImage().pixelColor(0, 0), QColor(Qt::green));
}

void tst_CellImage::theDefaultPictureFollowsTheConfiguration()
{
    m_folder->writePicture(QStringLiteral("default.png"), QSize(7, 5), Qt::red);
    m_folder->writePicture(QStringLiteral("other.png"), QSize(7, 5), Qt::blue);
    QCOMPARE(defaultCellImage().pixelColor(0, 0), QColor(Qt::red));
    globalConfig->defaultCellImage = m_folder->path(QStringLiteral("other.png"));
    QCOMPARE(defaultCellImage().pixelColor(0, 0), QColor(Qt::blue));
}

void tst_CellImage::withoutADefaultPictureItIsNull()
{
    QVERIFY(defaultCellImage().isNull());
    m_folder->writePicture(QStringLiteral("default.png"), QSize(7, 5), Qt::red);
    QVERIFY(!defaultCellImage().isNull());
    QVERIFY(QFile::remove(m_folder->path(QStringLiteral("default.png"))));
    QVERIFY(defaultCellImage().isNull());
}

QTEST_GUILESS_MAIN(tst_CellImage)
#include "tst_CellImage.moc"
