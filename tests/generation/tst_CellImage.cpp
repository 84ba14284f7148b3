// SPDX-License-Identifier: MIT
#include "generation/CellImage.h"

#include "support/MemoryLimit.h"
#include "support/ScratchFolder.h"

#include <QBuffer>
#include <QFile>
#include <QTest>

#include <new>
#include <sys/resource.h>
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

// All but the pixels.
QByteArray headerOfAPicture(const QSize &size)
{
    return "P6 " + QByteArray::number(size.width()) + ' ' + QByteArray::number(size.height()) + " 255\n";
}

// The most memory that this process ever used, in MB.
int largestSize()
{
    rusage usage{};
    if (getrusage(RUSAGE_SELF, &usage) != 0) {
        qFatal("no size of this process");
    }
    constexpr long kilobytesPerMegabyte = 1024;
    return static_cast<int>(usage.ru_maxrss / kilobytesPerMegabyte);
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
    void aLargePictureTakesTheMemoryOfItsOwnColors_data();
    void aLargePictureTakesTheMemoryOfItsOwnColors();
    void aLargePictureThatDoesNotFitIsNotTried();
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
    folder.write(QStringLiteral("grey.pgm"), "P5 12000 2 255\n"); // without pixels
    QVERIFY(loadCellImage(folder.path(QStringLiteral("grey.pgm"))).isNull());
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
    QVERIFY(wide.save(folder.path(QStringLiteral("wide.jpg"))));
    QCOMPARE(loadCellImage(folder.path(QStringLiteral("wide.jpg"))).size(), QSize(10000, 5));
    const QImage grey = wide.convertToFormat(QImage::Format_Grayscale8);
    QVERIFY(grey.save(folder.path(QStringLiteral("grey.png"))));
    QCOMPARE(loadCellImage(folder.path(QStringLiteral("grey.png"))).size(), QSize(10000, 5));
    folder.writePicture(QStringLiteral("largest.png"), QSize(10000, 2), Qt::red);
    QCOMPARE(loadCellImage(folder.path(QStringLiteral("largest.png"))).size(), QSize(10000, 2));
}

void tst_CellImage::aLargePictureTakesTheMemoryOfItsOwnColors_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<int>("megabytes");
    // In 32 bits a pixel each takes 96 MB.
    QTest::newRow("black and white") << QImage::Format_Mono << 16;
    QTest::newRow("grey") << QImage::Format_Grayscale8 << 64;
    QTest::newRow("256 colors") << QImage::Format_Indexed8 << 64;
}

void tst_CellImage::aLargePictureTakesTheMemoryOfItsOwnColors()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    QFETCH(QImage::Format, format);
    QFETCH(int, megabytes);
    const ScratchFolder folder;
    const QString path = folder.path(QStringLiteral("large.png"));
    {
        QImage large(12000, 2000, format);
        large.setColorTable({qRgb(255, 0, 0), qRgb(0, 0, 255)});
        large.fill(0);
        QVERIFY(large.save(path));
    }
    const MemoryLimit limit(rlim_t(megabytes) << 20);
    QCOMPARE(loadCellImage(path).size(), QSize(10000, 1666));
}

void tst_CellImage::aLargePictureThatDoesNotFitIsNotTried()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    const ScratchFolder folder;
    const QString path = folder.path(QStringLiteral("large.ppm"));
    folder.write(QStringLiteral("large.ppm"), headerOfAPicture(QSize(20000, 4000)));
    QVERIFY(loadCellImage(path).isNull()); // the picture itself is missing
    const MemoryLimit limit(150 << 20);    // 320 MB are needed, and 80 for the reduced one
    QVERIFY_EXCEPTION_THROWN(loadCellImage(path), std::bad_alloc);
}

void tst_CellImage::aPictureWhoseHeaderLiesCostsNothing()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("the sanitizer takes memory for every byte that could be used");
    }
    const ScratchFolder folder;
    folder.write(QStringLiteral("lying.ppm"), headerOfAPicture(QSize(30000, 20000)) + "0123456789");
    const int before = largestSize();
    QVERIFY(loadCellImage(folder.path(QStringLiteral("lying.ppm"))).isNull());
    QVERIFY(largestSize() - before < 20);
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
