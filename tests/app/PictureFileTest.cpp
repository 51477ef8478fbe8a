#include "app/saving/PictureFile.h"

#include "tests/app/PictureBuilder.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPageLayout>
#include <QProcess>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vasker {
namespace {

class PictureFiles : public testing::Test {
  protected:
    [[nodiscard]] QString path(const char* name) const {
        return m_folder.filePath(QString::fromLatin1(name));
    }
    static QByteArray outputOf(const char* program, const QStringList& arguments) {
        QProcess process;
        process.start(QString::fromLatin1(program), arguments);
        EXPECT_TRUE(process.waitForFinished(20'000));
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput();
    }
    static std::string textOf(const QString& pdf) {
        return outputOf(VASKER_PDFTOTEXT, {pdf, QStringLiteral("-")}).simplified().toStdString();
    }
    /// Its only page as an image of 96 dots per inch.
    [[nodiscard]] QImage pageOf(const QString& pdf) const {
        const QString page = path("page");
        outputOf(VASKER_PDFTOPPM,
                 {QStringLiteral("-png"),
                  QStringLiteral("-r"),
                  QStringLiteral("96"),
                  QStringLiteral("-singlefile"),
                  pdf,
                  page});
        return QImage(page + QStringLiteral(".png"));
    }

    QTemporaryDir m_folder;
};

/// Colours may have gone through a lossy encoding.
bool isAbout(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) < 12 && std::abs(a.green() - b.green()) < 12 &&
           std::abs(a.blue() - b.blue()) < 12;
}

TEST_F(PictureFiles, APngReadsBackTheSame) {
    const PictureFile file{makePicture()};
    EXPECT_EQ(file.write(path("map.PNG")), QString());
    EXPECT_EQ(QImage(path("map.PNG"), "png").convertToFormat(QImage::Format_RGB32),
              file.picture.composed());
}

TEST_F(PictureFiles, APdfHasTheTextsOnceEach) {
    EXPECT_EQ(PictureFile{makePicture()}.write(path("map.pdf")), QString());
    EXPECT_EQ(textOf(path("map.pdf")), "Grande Prairie A title A note. Another note.");
}

TEST_F(PictureFiles, APdfShowsThePictureInItsSize) {
    const PictureFile file{makePicture(2)};
    EXPECT_EQ(file.write(path("map.pdf")), QString());
    const QImage page = pageOf(path("map.pdf"));
    EXPECT_NEAR(page.width(), file.picture.size().width(), 1);
    EXPECT_NEAR(page.height(), file.picture.size().height(), 1);
    EXPECT_TRUE(isAbout(page.pixelColor(10, 10), backgroundColor));
    EXPECT_TRUE(isAbout(page.pixelColor(100, 100), dotColor));
    EXPECT_TRUE(isAbout(page.pixelColor(2, 303), paper)) << "the end of the map is covered";
}

TEST_F(PictureFiles, APageIsFilledInItsMiddle) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QPageLayout page(QPageSize(QPageSize::Letter),
                           QPageLayout::Landscape,
                           QMarginsF(36, 36, 36, 36)); // points: 48 pixels
    EXPECT_EQ(PictureFile{makePicture()}.writePage(buffer, page), QString());
    QFile pdf(path("page.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::WriteOnly));
    pdf.write(buffer.data());
    pdf.close();
    const QImage shown = pageOf(pdf.fileName());
    EXPECT_EQ(shown.size(), QSize(1056, 816));
    EXPECT_EQ(shown.pixelColor(528, 44), QColor(Qt::white));
    EXPECT_TRUE(isAbout(shown.pixelColor(528, 60), backgroundColor));
    EXPECT_TRUE(isAbout(shown.pixelColor(528, 764), paper));
    EXPECT_EQ(shown.pixelColor(528, 772), QColor(Qt::white));
}

TEST_F(PictureFiles, NothingOfTheMapStandsBesideItOnAPage) {
    MapPicture picture = makePicture();
    MapDrawing drawing = *picture.map;
    const auto dotAt = [](float x, float y) { return Dot{x, y, rgbOf(dotColor)}; };
    drawing.frame.layers.push_back(
        DotLayer{{dotAt(-20, 100), dotAt(420, 100), dotAt(100, -20)}, 8, 1, Qt::white});
    picture.map = std::make_shared<const MapDrawing>(std::move(drawing));
    QFile pdf(path("page.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::WriteOnly));
    const double margin = 72; // points: 96 pixels
    const QSizeF size = picture.size() * 0.75 + 2 * QSizeF(margin, margin);
    const QPageLayout page(QPageSize(size, QPageSize::Point, QString(), QPageSize::ExactMatch),
                           QPageLayout::Portrait,
                           QMarginsF(margin, margin, margin, margin));
    EXPECT_EQ(PictureFile{picture}.writePage(pdf, page), QString());
    pdf.close();
    const QImage shown = pageOf(pdf.fileName());
    EXPECT_TRUE(isAbout(shown.pixelColor(96 + 100, 96 + 100), dotColor));
    for (const QPoint beside : {QPoint(-20, 100), QPoint(420, 100), QPoint(100, -20)}) {
        EXPECT_EQ(shown.pixelColor(QPoint(96, 96) + beside), QColor(Qt::white)) << beside.x();
    }
}

TEST_F(PictureFiles, AnSvgHasTheBasemapAsAnImageAndAllElseAsShapes) {
    const PictureFile file{makePicture()};
    EXPECT_EQ(file.write(path("map.svg")), QString());
    QFile svg(path("map.svg"));
    ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
    const QByteArray text = svg.readAll();
    EXPECT_EQ(text.count("<image"), 1);
    EXPECT_TRUE(text.contains("<title>A title</title>"));
    EXPECT_TRUE(text.contains(">A note.</text>"));

    QSvgRenderer renderer(text);
    ASSERT_TRUE(renderer.isValid());
    EXPECT_EQ(renderer.viewBoxF().size(), file.picture.size());
    QImage shown(file.picture.size().toSize(), QImage::Format_RGB32);
    QPainter painter(&shown);
    renderer.render(&painter);
    EXPECT_TRUE(isAbout(shown.pixelColor(10, 10), backgroundColor));
    EXPECT_TRUE(isAbout(shown.pixelColor(100, 100), dotColor));
    EXPECT_TRUE(isAbout(shown.pixelColor(2, 303), paper));
}

TEST_F(PictureFiles, OfAnotherFormatIsRefusedAndNothingIsWritten) {
    for (const char* name : {"map.jpg", "map", "map.pdf.txt"}) {
        EXPECT_EQ(PictureFile{makePicture()}.write(path(name)),
                  QStringLiteral("its name has to end in .png, .pdf or .svg."));
    }
    for (const char* name : {"absent/map.png", "absent/map.pdf", "absent/map.svg"}) {
        EXPECT_NE(PictureFile{makePicture()}.write(path(name)), QString());
    }
    EXPECT_EQ(QDir(m_folder.path()).count(), 2U);
}

} // namespace
} // namespace vasker
