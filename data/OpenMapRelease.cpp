#include "data/OpenMapRelease.h"

#include "data/Digest.h"
#include "data/ReleaseReader.h"
#include "data/ReleaseRules.h"

#include <algorithm>

namespace vasker {

namespace {

using Invalid = OpenMapRelease::Invalid;
using Refusal = OpenMapRelease::Refusal;

constexpr std::int64_t acceptedSchemaVersion = 1;

void refuseOversized(std::string_view bytes) {
    if (bytes.size() > OpenMapRelease::maximumFileSize) {
        throw Refusal(Invalid::oversized,
                      "the file has " + std::to_string(bytes.size()) + " bytes; at most " +
                          std::to_string(OpenMapRelease::maximumFileSize) + " are accepted");
    }
}

void refuseOtherDigest(std::string_view bytes,
                       std::string_view expectedSHA256,
                       const std::stop_token& stop) {
    const std::string digest = sha256(bytes, stop);
    if (digest != expectedSHA256) {
        throw Refusal(Invalid::checksum, "the file's SHA-256 digest is " + digest);
    }
}

void refuseOtherVersion(std::int64_t schemaVersion) {
    if (schemaVersion != acceptedSchemaVersion) {
        throw Refusal(Invalid::schema,
                      "schemaVersion: " + std::to_string(schemaVersion) + " is not " +
                          std::to_string(acceptedSchemaVersion));
    }
}

void refuseUnknownKey(const std::optional<std::string>& firstUnknownKey) {
    if (firstUnknownKey) {
        throw Refusal(Invalid::schema, *firstUnknownKey + ": unknown key");
    }
}

} // namespace

OpenMapRelease OpenMapRelease::decode(std::string_view bytes, std::string_view expectedSHA256) {
    refuseOversized(bytes);
    return decode(withJSONPadding(bytes), expectedSHA256, {});
}

OpenMapRelease OpenMapRelease::decode(std::string&& bytes,
                                      std::string_view expectedSHA256,
                                      const std::stop_token& stop) {
    refuseOversized(bytes);
    refuseOtherDigest(bytes, expectedSHA256, stop);
    ReleaseReading reading = readReleaseAndKeys(std::move(bytes), stop);
    refuseOtherVersion(reading.release.schemaVersion);
    refuseUnknownKey(reading.firstUnknownKey);
    validate(reading.release, stop);
    return std::move(reading.release);
}

std::string_view OpenMapRelease::errorDescription(Invalid invalid) noexcept {
    switch (invalid) {
    case Invalid::oversized:
        return "The bundled map exceeds its size limit.";
    case Invalid::checksum:
        return "The bundled map does not match this app release.";
    case Invalid::schema:
        return "The bundled map uses an unsupported format.";
    case Invalid::records:
        return "The bundled map has incomplete or repeated records.";
    case Invalid::provenance:
        return "The bundled map is missing source and licence information.";
    case Invalid::coordinates:
        return "The bundled map contains invalid coordinates.";
    }
    return "";
}

const char* OpenMapRelease::Refusal::what() const noexcept {
    return errorDescription(m_invalid).data(); // a literal, which is terminated
}

const OpenMapRelease::Source* OpenMapRelease::source(std::string_view id) const noexcept {
    const auto found = std::ranges::find(sources, id, &Source::id);
    return found == sources.end() ? nullptr : &*found;
}

} // namespace vasker
