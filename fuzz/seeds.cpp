// Writes what the inputs start from: `fuzz-seeds PROJECT CORPORA` writes a few files to a folder of
// CORPORA for each input. Tiles and datasets come from PROJECT, the folder of the project.

#include "data/ReleaseWriter.h"
#include "fuzz/support/ForeignDatabase.h"
#include "fuzz/support/TextSeeds.h"
#include "map/tiles/TileArchive.h"
#include "map/tiles/TileInflation.h"
#include "map/tileservice/TileCache.h"
#include "tests/support/ReleaseBuilder.h"
#include "tests/support/ReleaseFromBytes.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QImage>

#include <filesystem>
#include <fstream>
#include <iostream>

using namespace vasker;

namespace {

void write(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

/// The tiles of the first zooms that are small enough to be changed in many places.
void writeTiles(TileArchive& archive, const std::filesystem::path& corpora) {
    constexpr std::size_t largest = 8'000;
    int number = 0;
    for (int zoom = 0; zoom <= 6; ++zoom) {
        for (int column = 0; column < 1 << zoom && number < 40; ++column) {
            const TileKey key{zoom, column, (1 << zoom) / 3};
            const auto stored = archive.tile(key);
            const auto tile = stored ? inflatedTile(*stored) : std::nullopt;
            if (!tile || tile->empty() || tile->size() > largest) {
                continue;
            }
            const std::string name = "seed-" + std::to_string(++number);
            const std::string parameters{
                static_cast<char>(number), '\x7c', static_cast<char>(zoom)};
            write(corpora / "tile" / name, number % 4 == 0 ? *stored : *tile);
            write(corpora / "painting" / name, parameters + *tile);
            if (number <= 4) {
                write(corpora / "response" / name,
                      "\x0cw"
                      "application/x-protobuf\nmax-age=900000\n\n\n\"tag\"\n\n\n" +
                          *stored);
            }
        }
    }
}

void writeImages(const std::filesystem::path& corpora) {
    QImage image(24, 16, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, qRgb(x * 10, y * 15, (x * y) % 256));
        }
    }
    for (const char* format : {"png", "jpg", "webp"}) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        if (image.save(&buffer, format)) {
            write(corpora / "image" / (std::string("seed-") + format), bytes.toStdString());
            write(corpora / "response" / (std::string("seed-") + format),
                  "\x0cwimage/png\nno-store\nWed, 04 Mar 2026 05:06:07 GMT\n120\n\n\n\n" +
                      bytes.toStdString());
        }
    }
}

void writeDatabases(const std::filesystem::path& corpora) {
    const std::filesystem::path archive = corpora / "archive" / "seed-file";
    std::filesystem::create_directories(archive.parent_path());
    std::filesystem::remove(archive);
    makeForeignDatabase(archive,
                        "CREATE TABLE metadata(name TEXT, value TEXT);"
                        "INSERT INTO metadata VALUES('maxzoom', '2'), ('attribution', 'a'),"
                        " ('world_maxzoom', '1'), ('detail_bounds', '-90,0,0,45');"
                        "CREATE TABLE tiles(zoom_level, tile_column, tile_row, tile_data);"
                        "INSERT INTO tiles VALUES(0, 0, 0, x'0102'), (2, 1, 1, zeroblob(900));"
                        "CREATE UNIQUE INDEX tile ON tiles(zoom_level, tile_column, tile_row)");

    const std::filesystem::path folder = corpora / "cache";
    const QDateTime now(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::UTC);
    std::filesystem::create_directories(folder);
    std::filesystem::remove(folder / "seed-file");
    makeForeignDatabase(folder / "tiles.sqlite", ""); // with small pages
    {
        TileCache cache(QString::fromStdString(folder), 1'000'000);
        cache.keep(QStringLiteral("b"), {QByteArray(700, 'b'), now.addDays(7), "tag", "then"}, now);
        cache.keep(QStringLiteral("c"), {"c", now.addDays(7), {}, {}}, now);
    }
    std::filesystem::rename(folder / "tiles.sqlite", folder / "seed-file");
    std::filesystem::remove(folder / "tiles.sqlite-journal");
}

void writeReleases(const std::filesystem::path& corpora) {
    const std::string longest(64, '\x5a'); // bytes that change something
    int number = 0;
    for (const OpenMapRelease& release : {makeRelease(), releaseFrom({})}) {
        write(corpora / "decode" / ("seed-" + std::to_string(++number)), encode(release));
    }
    write(corpora / "release" / "seed-1", longest);
}

void writeTexts(const std::filesystem::path& corpora) {
    int number = 0;
    for (const TextSeed& seed : textSeeds) {
        write(corpora / seed.input / ("seed-text-" + std::to_string(++number)),
              std::string(seed.text));
    }
}

void copyFiles(const std::filesystem::path& project, const std::filesystem::path& corpora) {
    const auto copy = [](const std::filesystem::path& from, const std::filesystem::path& corpus) {
        std::filesystem::create_directories(corpus);
        std::filesystem::copy_file(
            from, corpus / from.filename(), std::filesystem::copy_options::overwrite_existing);
    };
    copy(project / "resources/BundleInformation.json", corpora / "bundle");
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(project / "tests/tools/fixtures/datasets")) {
        const std::filesystem::path& path = entry.path();
        if (path.extension() == ".csv" || path.extension() == ".geojson") {
            copy(path, corpora / path.extension().string().substr(1));
        } else if (path.extension() == ".toml") {
            copy(path, corpora / "description");
        }
    }
}

} // namespace

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments); // finds the encoders
    const std::filesystem::path project = count == 3 ? arguments[1] : "";
    const auto archive = TileArchive::open(project / "resources/basemap.mbtiles");
    if (!archive) {
        std::cerr << "usage: fuzz-seeds PROJECT CORPORA\n";
        return 2;
    }
    writeTexts(arguments[2]);
    copyFiles(project, arguments[2]);
    writeReleases(arguments[2]);
    writeTiles(*archive, arguments[2]);
    writeImages(arguments[2]);
    writeDatabases(arguments[2]);
}
