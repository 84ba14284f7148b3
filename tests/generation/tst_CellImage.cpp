// SPDX-License-Identifier: MIT
#include "generation/CellImage.h"

#include "support/MemoryLimit.h"
#include "support/ScratchFolder.h"

#include <QBuffer>
#include <QFile>
#include <QTest>

#include <new>
#include <sys/stat.h>

namespace {
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
    void aPictureIsRead();
    void aPictureLyingOnItsSideIsTurnedUpright();
    void whatIsNoPictureIsANullImage();
    void aPipeIsNoPicture();
    void aPictureThatIsTooLargeIsReadSmaller();
    void aPictureWhoseHeaderLiesCostsNothing();
    void aPictureWithoutMemoryIsNoDamagedOne();
};

void tst_CellImage::aPictureIsRead()
{
    const ScratchFolder folder;
    folder.writePicture(QStringLiteral("red.png"), QSize(7, 5), Qt::red);
    const QImage picture = loadCellImage(folder.path(QStringLiteral("red.png")));
    QCOMPARE(picture.size(), QSize(7, 5));
    QCOMPARE(picture.pixelColor(3, 3), QColor(Qt::red));
}

void tst_CellImage::aPictureLyingOnItsSideIsTurnedUpright()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("phone.jpg"), jpegLyingOnItsSide());
    const QImage picture = loadCellImage(folder.path(QStringLiteral("phone.jpg")));
    QCOMPARE(picture.size(), QSize(20, 40));
    const QColor top = picture.pixelColor(10, 3);
    const QColor bottom = picture.pixelColor(10, 36);
    QVERIFY(top.red() > 200 && top.blue() < 50);
    QVERIFY(bottom.blue() > 200 && bottom.red() < 50);
}

void tst_CellImage::whatIsNoPictureIsANullImage()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("text.png"), QByteArrayLiteral("no picture"));
    QVERIFY(loadCellImage(folder.path(QStringLiteral("text.png"))).isNull());
    QVERIFY(loadCellImage(folder.path(QStringLiteral("missing.png"))).isNull());
    QVERIFY(loadCellImage(QString()).isNull());
}

void tst_CellImage::aPipeIsNoPicture()
{
    const ScratchFolder folder;
    const QString pipe = folder.path(QStringLiteral("pipe.png"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
    QVERIFY(loadCellImage(pipe).isNull());
}

void tst_CellImage::aPictureThatIsTooLargeIsReadSmaller()
{
    const ScratchFolder folder;
    QImage wide(12000, 6, QImage::Format_RGB32);
    wide.fill(Qt::red);
    QVERIFY(wide.save(folder.path(QStringLiteral("wide.png"))));
    QCOMPARE(loadCellImage(folder.path(QStringLiteral("wide.png"))).size(), QSize(10000, 5));
    folder.writePicture(QStringLiteral("largest.png"), QSize(10000, 2), Qt::red);
    QCOMPARE(loadCellImage(folder.path(QStringLiteral("largest.png"))).size(), QSize(10000, 2));
}

void tst_CellImage::aPictureWhoseHeaderLiesCostsNothing()
{
    const ScratchFolder folder;
    folder.writePicture(QStringLiteral("small.bmp"), QSize(4, 4), Qt::red);
    QImage small(4, 4, QImage::Format_RGB32);
    small.fill(Qt::red);
    QVERIFY(small.save(folder.path(QStringLiteral("lying.bmp")), "BMP"));
    QFile file(folder.path(QStringLiteral("lying.bmp")));
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.seek(18); // width and height
    file.write(QByteArray("\xff\xff\0\0\xff\xff\0\0", 8));
    file.close();
    const QImage read = loadCellImage(folder.path(QStringLiteral("lying.bmp")));
    QVERIFY(read.width() <= 10000 && read.height() <= 10000);
}

void tst_CellImage::aPictureWithoutMemoryIsNoDamagedOne()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    const ScratchFolder folder;
    const QString large = folder.path(QStringLiteral("large.png"));
    QImage picture(10000, 8000, QImage::Format_Mono);
    picture.fill(0);
    QVERIFY(picture.save(large));
    folder.write(QStringLiteral("damaged.png"), folder.read(QStringLiteral("large.png")).left(100));
    {
        const MemoryLimit limit(8 << 20);
        QVERIFY_EXCEPTION_THROWN(loadCellImage(large), std::bad_alloc);
        folder.writePicture(QStringLiteral("small.png"), QSize(7, 5), Qt::red);
        QCOMPARE(loadCellImage(folder.path(QStringLiteral("small.png"))).size(), QSize(7, 5));
    }
    QCOMPARE(loadCellImage(large).size(), picture.size());
    loadCellImage(folder.path(QStringLiteral("damaged.png"))); // throws nothing
}

QTEST_GUILESS_MAIN(tst_CellImage)
#include "tst_CellImage.moc"
