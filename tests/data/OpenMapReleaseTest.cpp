#include "data/OpenMapRelease.h"

#include "data/Cancelled.h"
#include "data/Digest.h"
#include "data/ReleaseWriter.h"
#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vasker {
namespace {

using Invalid = OpenMapRelease::Invalid;

/// How decode() with this digest ends.
std::string outcomeWithDigest(std::string_view json, std::string_view digest) {
    try {
        static_cast<void>(OpenMapRelease::decode(json, digest));
        return "ok";
    } catch (const OpenMapRelease::Refusal& refusal) {
        return std::string(nameOf(refusal.invalid()));
    }
}

std::string upperCase(std::string text) {
    std::ranges::transform(text, text.begin(), [](char each) {
        return each >= 'a' && each <= 'f' ? static_cast<char>(each - 0x20) : each;
    });
    return text;
}

/// A valid file of exactly `size` bytes: blanks between the values carry no meaning.
std::string fileOfSize(std::size_t size) {
    std::string json = encode(makeRelease());
    return json + std::string(size - json.size(), ' ');
}

TEST(OpenMapRelease, AValidFileIsReturnedWhole) {
    const OpenMapRelease release = makeRelease();
    EXPECT_EQ(decoded(encode(release)), release);
}

TEST(OpenMapRelease, EveryRefusalHasItsFixedMessage) {
    EXPECT_STREQ(OpenMapRelease::Refusal(Invalid::oversized, "").what(),
                 "The bundled map exceeds its size limit.");
    EXPECT_STREQ(OpenMapRelease::Refusal(Invalid::checksum, "").what(),
                 "The bundled map does not match this app release.");
    EXPECT_STREQ(OpenMapRelease::Refusal(Invalid::schema, "").what(),
                 "The bundled map uses an unsupported format.");
    EXPECT_STREQ(OpenMapRelease::Refusal(Invalid::records, "").what(),
                 "The bundled map has incomplete or repeated records.");
    EXPECT_STREQ(OpenMapRelease::Refusal(Invalid::provenance, "").what(),
                 "The bundled map is missing source and licence information.");
    EXPECT_STREQ(OpenMapRelease::Refusal(Invalid::coordinates, "").what(),
                 "The bundled map contains invalid coordinates.");
}

TEST(OpenMapRelease, AFileOfExactlyTheLargestSizeIsAccepted) {
    EXPECT_EQ(outcomeOf(fileOfSize(15'000'000)), "ok");
}

TEST(OpenMapRelease, AFileOneByteLargerIsOversizedThoughItsDigestIsRight) {
    EXPECT_EQ(outcomeOf(fileOfSize(15'000'001)),
              "oversized: the file has 15000001 bytes; at most 15000000 are accepted");
}

TEST(OpenMapRelease, TheSizeIsCheckedBeforeTheDigest) {
    EXPECT_EQ(outcomeWithDigest(std::string(15'000'001, ' '), ""), "oversized");
}

TEST(OpenMapRelease, TheDigestIsComparedAsItStands) {
    const std::string json = encode(makeRelease());
    const std::string digest = sha256(json);
    EXPECT_EQ(outcomeWithDigest(json, digest), "ok");
    EXPECT_EQ(outcomeWithDigest(json, upperCase(digest)), "checksum");
    EXPECT_EQ(outcomeWithDigest(json, digest + "\n"), "checksum");
    EXPECT_EQ(outcomeWithDigest(json, " " + digest), "checksum");
    EXPECT_EQ(outcomeWithDigest(json, digest.substr(1)), "checksum");
    EXPECT_EQ(outcomeWithDigest(json, ""), "checksum");
    EXPECT_EQ(outcomeWithDigest(json, sha256("another file")), "checksum");
}

TEST(OpenMapRelease, TheDigestIsCheckedBeforeTheFileIsParsed) {
    EXPECT_EQ(outcomeWithDigest("no JSON", ""), "checksum");
}

TEST(OpenMapRelease, AChecksumRefusalNamesTheFilesOwnDigest) {
    try {
        static_cast<void>(OpenMapRelease::decode("", "x"));
        FAIL() << "an empty file was accepted";
    } catch (const OpenMapRelease::Refusal& refusal) {
        EXPECT_EQ(refusal.place(),
                  "the file's SHA-256 digest is "
                  "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    }
}

TEST(OpenMapRelease, AnotherSchemaVersionIsRefused) {
    OpenMapRelease release = makeRelease();
    for (const std::int64_t version : {0, 2, -1}) {
        release.schemaVersion = version;
        EXPECT_EQ(outcomeOf(release),
                  "schema: schemaVersion: " + std::to_string(version) + " is not 1");
    }
}

TEST(OpenMapRelease, TheVersionIsCheckedBeforeUnknownKeysAndAfterAllTypes) {
    OpenMapRelease release = makeRelease();
    release.schemaVersion = 2;
    const std::string json =
        replaced(encode(release), R"({"schemaVersion")", R"({"x":0,"schemaVersion")");
    EXPECT_EQ(outcomeOf(json), "schema: schemaVersion: 2 is not 1");
    EXPECT_EQ(outcomeOf(replaced(json, R"("value":"12.5 t")", R"("value":12.5)")),
              "decoding: The JSON element does not have the requested type. "
              "at assets[0].facts[0].value");
}

TEST(OpenMapRelease, UnknownKeysAreCheckedBeforeTheRules) {
    OpenMapRelease release = makeRelease();
    release.releaseID.clear();
    EXPECT_EQ(outcomeOf(release), "records: releaseID: empty");
    EXPECT_EQ(outcomeOf(replaced(encode(release), R"("label":)", R"("unit":"t","label":)")),
              "schema: assets[0].facts[0].unit: unknown key");
}

TEST(OpenMapRelease, BytesMayBeGivenAway) {
    const OpenMapRelease release = makeRelease();
    std::string json = encode(release);
    const std::string digest = sha256(json);
    EXPECT_EQ(OpenMapRelease::decode(std::move(json), digest, {}), release);
}

TEST(OpenMapRelease, LoadingEndsWhenAStopIsRequested) {
    const std::string json = encode(makeRelease());
    const std::string digest = sha256(json);
    std::stop_source stop;
    EXPECT_EQ(OpenMapRelease::decode(std::string(json), digest, stop.get_token()), makeRelease());
    stop.request_stop();
    EXPECT_THROW(
        static_cast<void>(OpenMapRelease::decode(std::string(json), digest, stop.get_token())),
        Cancelled);
}

TEST(OpenMapRelease, AFileFullOfLimitationsIsReadWhole) {
    constexpr std::size_t count = 4'500'000;
    OpenMapRelease release = makeRelease();
    release.limitations.assign(count, "");
    std::string json = encode(release);
    const std::string digest = sha256(json);
    EXPECT_EQ(OpenMapRelease::decode(std::move(json), digest, {}).limitations.size(), count);
}

TEST(OpenMapRelease, ASourceIsFoundByItsExactId) {
    OpenMapRelease release = makeRelease();
    release.sources = {makeSource(1), makeSource(2)};
    EXPECT_EQ(release.source(sourceID(2)), &release.sources[1]);
    EXPECT_EQ(release.source(upperCase(sourceID(2))), nullptr);
    EXPECT_EQ(release.source(""), nullptr);
}

TEST(OpenMapRelease, TheFirstOfSourcesWithOneIdIsFound) {
    OpenMapRelease release = makeRelease();
    release.sources = {makeSource(), makeSource()};
    EXPECT_EQ(release.source(sourceID()), release.sources.data());
}

} // namespace
} // namespace vasker
