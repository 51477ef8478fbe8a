// What the kit costs, each figure beside its floor, which is measured in the same run:
//
//   decode/*        OpenMapRelease::decode(), from the bytes that readWholeFile() returns to a
//                   checked release; without freeing the release
//   floor/decode    what the libraries that we use take for a digest and a parse that checks all of
//                   JSON: libcrypto's SHA-256, and simdjson's DOM in a new parser from bytes that
//                   are already padded; without freeing the tree
//   index/*         making a ReleaseIndex
//   floor/index     copying the bytes that its search goes through
//   filtered/*      one ReleaseIndex::filtered(), by kind of query
//   floor/filtered  reading the bytes that the search goes through, by memchr() for an absent byte
//
// by release:
//
//   1%, 10%, limits 100 to 10,000 records, with routes; `limits` is a file of the largest size
//   texts           a file of the largest size without routes, which has the most text
//   marks ...       valid files of the largest size that are one text of one kind of characters
//   limitations     a valid file of the largest size that is one list of empty texts

#include "bench/Figures.h"
#include "data/Digest.h"
#include "data/OpenMapRelease.h"
#include "data/ReleaseIndex.h"
#include "data/ReleaseReader.h"
#include "data/ReleaseWriter.h"
#include "tools/openmap-release/Synthesis.h"

#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using vasker::OpenMapRelease;
using vasker::ReleaseIndex;
using vasker::TextLocale;

std::string fileWith(std::size_t records, std::size_t routePoints, std::size_t bytes) {
    return vasker::synthesizeFile(
        {.records = records, .routePoints = routePoints, .bytes = bytes, .seed = 1});
}

/// A file of almost the largest size whose only record has an id of many `characters`.
std::string fileOf(std::string_view characters) {
    OpenMapRelease release = vasker::synthesize({.records = 5, .seed = 1});
    std::string& id = release.assets.front().id;
    const std::size_t room = OpenMapRelease::maximumFileSize - vasker::encode(release).size();
    while (id.size() + characters.size() <= room) {
        id += characters;
    }
    return vasker::encode(release);
}

/// A file of almost the largest size that is limitations, all of them empty.
std::string fileOfLimitations() {
    OpenMapRelease release = vasker::synthesize({.records = 5, .seed = 1});
    const std::size_t room = OpenMapRelease::maximumFileSize - vasker::encode(release).size();
    release.limitations.resize(release.limitations.size() +
                               room / std::string_view("\"\",").size());
    return vasker::encode(release);
}

std::shared_ptr<const OpenMapRelease> releaseOf(const std::string& file) {
    return std::make_shared<const OpenMapRelease>(
        OpenMapRelease::decode(file, vasker::sha256(file)));
}

void decode(benchmark::State& state, const std::string& file) {
    const std::string digest = vasker::sha256(file);
    std::optional<OpenMapRelease> release;
    for (auto _ : state) {
        state.PauseTiming();
        release.reset();
        std::string bytes = vasker::withJSONPadding(file);
        state.ResumeTiming();
        release = OpenMapRelease::decode(std::move(bytes), digest, {});
    }
}

void floorOfDecode(benchmark::State& state, const std::string& file) {
    const std::string digest = vasker::sha256(file);
    const simdjson::padded_string padded(file);
    std::optional<simdjson::dom::parser> parser;
    for (auto _ : state) {
        state.PauseTiming();
        parser.reset();
        state.ResumeTiming();
        if (vasker::sha256(padded) != digest) {
            throw std::logic_error("the digest of the same bytes differs");
        }
        simdjson::dom::element root;
        if (parser.emplace().parse(padded).get(root) != simdjson::SUCCESS) {
            throw std::logic_error("the release is not JSON");
        }
        benchmark::DoNotOptimize(root);
    }
}

void makeIndex(benchmark::State& state,
               const std::shared_ptr<const OpenMapRelease>& release,
               const TextLocale& locale) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(ReleaseIndex(release, locale));
    }
}

void floorOfIndex(benchmark::State& state, const ReleaseIndex& index) {
    const std::string_view texts = index.texts().bytes();
    for (auto _ : state) {
        std::string copy(texts);
        benchmark::DoNotOptimize(copy.data());
    }
}

void filter(benchmark::State& state, const ReleaseIndex& index, const std::string& query) {
    std::size_t records = 0;
    for (auto _ : state) {
        const auto found = index.filtered(query, "all");
        benchmark::DoNotOptimize(found.data());
        records = found.size();
    }
    state.counters["records"] = static_cast<double>(records);
}

void floorOfFilter(benchmark::State& state, const ReleaseIndex& index) {
    constexpr int absentByte = 0xC0; // UTF-8 does not have it
    const std::string_view texts = index.texts().bytes();
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::memchr(texts.data(), absentByte, texts.size()));
    }
    state.counters["bytes"] = static_cast<double>(texts.size());
}

template <typename Body>
void add(const std::string& name, Body body) {
    benchmark::RegisterBenchmark(name.c_str(), std::move(body))->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const TextLocale locale("en_CA");

    using Named = std::pair<std::string, std::string>;
    std::vector<Named> files = {{"1%", fileWith(100, 3'000, 150'000)}};
    if (!vasker::isSmallBench()) {
        files.emplace_back("10%", fileWith(1'000, 30'000, 1'500'000));
        files.emplace_back("limits", fileWith(10'000, 300'000, OpenMapRelease::maximumFileSize));
        files.emplace_back("texts", fileWith(10'000, 0, OpenMapRelease::maximumFileSize));
    }
    const std::size_t sizes = files.size(); // these differ in size, the others in their text
    if (!vasker::isSmallBench()) {
        for (const auto& [name, characters] : std::vector<Named>{{"marks", "\u0301\u0316"},
                                                                 {"decomposing-marks", "\u0F73"},
                                                                 {"joined-letters", "x\u0302"},
                                                                 {"accents", "\u00C9"},
                                                                 {"ideographs", "\u4E00"},
                                                                 {"hangul-letters", "\u1100"}}) {
            files.emplace_back(name, fileOf(characters));
        }
        files.emplace_back("limitations", fileOfLimitations());
    }
    std::vector<std::shared_ptr<const OpenMapRelease>> releases;
    std::vector<ReleaseIndex> indices;
    for (const auto& [name, file] : files) {
        releases.push_back(releaseOf(file));
        indices.emplace_back(releases.back(), locale);
    }

    const std::size_t largest = std::min<std::size_t>(2, sizes - 1); // of those with routes
    const std::vector<Named> queries = {
        {"empty", ""},
        {"letter", "e"},
        {"word", "gas"},
        {"part-of-word", "tion"},
        {"name", releases[largest]->assets[indices[largest].filtered("", "all").back()].name},
        {"accent", "\u00C9"},
        {"joined", "e\u0332"}, // two code points, one character
        {"blanks", "    "},
        {"absent", "quetzalcoatl"},
        {"absent-of-common-letters", "a tenaritone"},
    };
    for (std::size_t at = 0; at < files.size(); ++at) {
        const std::string& name = files[at].first;
        add("floor/decode/" + name,
            [&, at](auto& state) { floorOfDecode(state, files[at].second); });
        add("decode/" + name, [&, at](auto& state) { decode(state, files[at].second); });
        add("floor/index/" + name, [&, at](auto& state) { floorOfIndex(state, indices[at]); });
        add("index/" + name, [&, at](auto& state) { makeIndex(state, releases[at], locale); });
        add("floor/filtered/" + name, [&, at](auto& state) { floorOfFilter(state, indices[at]); });
        if (at < sizes) {
            for (std::size_t query = 0; query < queries.size(); ++query) {
                add("filtered/" + name + '/' + queries[query].first, [&, at, query](auto& state) {
                    filter(state, indices[at], queries[query].second);
                });
            }
        } else {
            add("filtered/" + name + "/part-of-character",
                [&, at](auto& state) { filter(state, indices[at], "x"); });
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
