// What the kit costs on a release at its limits, each figure beside its floor:
//
//   decode/limits      OpenMapRelease::decode(): bytes to a checked release
//   floor/decode       libcrypto's SHA-256 and one bare parse of the same bytes, already padded, by
//   a
//                      fresh simdjson DOM parser; decode() does both and can be no faster
//   index/limits       making a ReleaseIndex of it
//   floor/index        copying the bytes of its searched texts once
//   filtered/limits/*  one ReleaseIndex::filtered(), by kind of query
//   filtered/texts/*   the same on a file of the largest size without routes: the most text
//   floor/filtered     reading the bytes of the folded texts at the limits once: the C library's
//                      memchr() for a byte that does not occur
//   floor/texts        the same for the most text

#include "data/Digest.h"
#include "data/OpenMapRelease.h"
#include "data/ReleaseIndex.h"
#include "tools/openmap-release/Synthesis.h"

#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <cstring>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using vasker::OpenMapRelease;
using vasker::ReleaseIndex;
using vasker::TextLocale;

/// A file of the largest size with the most records.
std::string fileWith(std::size_t routePoints) {
    return vasker::synthesizeFile({.records = 10'000,
                                   .routePoints = routePoints,
                                   .bytes = OpenMapRelease::maximumFileSize,
                                   .seed = 1});
}

std::shared_ptr<const OpenMapRelease> releaseOf(const std::string& file) {
    return std::make_shared<const OpenMapRelease>(
        OpenMapRelease::decode(file, vasker::sha256(file)));
}

void decode(benchmark::State& state, const std::string& file, const std::string& digest) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(OpenMapRelease::decode(file, digest));
    }
}

void floorOfDecode(benchmark::State& state, const std::string& file, const std::string& digest) {
    const simdjson::padded_string padded(file);
    for (auto _ : state) {
        if (vasker::sha256(padded) != digest) {
            throw std::logic_error("the digest of the same bytes differs");
        }
        simdjson::dom::parser parser;
        simdjson::dom::element root;
        if (parser.parse(padded).get(root) != simdjson::SUCCESS) {
            throw std::logic_error("the release is no JSON");
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
    constexpr int absentByte = 0xC0; // of no UTF-8
    const std::string_view texts = index.texts().bytes();
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::memchr(texts.data(), absentByte, texts.size()));
    }
    state.counters["bytes"] = static_cast<double>(texts.size());
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const TextLocale locale("en_CA");
    const std::string file = fileWith(300'000);
    const std::string digest = vasker::sha256(file);
    const auto release = releaseOf(file);
    const ReleaseIndex index(release, locale);
    const ReleaseIndex texts(releaseOf(fileWith(0)), locale);

    const auto add = [](const std::string& name, auto&& body) {
        benchmark::RegisterBenchmark(name.c_str(), body)->Unit(benchmark::kMillisecond);
    };
    add("floor/decode", [&](auto& state) { floorOfDecode(state, file, digest); });
    add("decode/limits", [&](auto& state) { decode(state, file, digest); });
    add("floor/index", [&](auto& state) { floorOfIndex(state, index); });
    add("index/limits", [&](auto& state) { makeIndex(state, release, locale); });
    add("floor/filtered", [&](auto& state) { floorOfFilter(state, index); });
    add("floor/texts", [&](auto& state) { floorOfFilter(state, texts); });

    const std::vector<std::pair<std::string, std::string>> queries = {
        {"empty", ""},
        {"letter", "e"},
        {"word", "gas"},
        {"name", release->assets[index.filtered("", "all").back()].name},
        {"accent", "\u00C9"},
        {"joined", "e\u0332"}, // two code points, one character
        {"blanks", "    "},
        {"absent", "quetzalcoatl"},
        {"absent-of-common-letters", "a tenaritone"},
    };
    for (const auto& [kind, query] : queries) {
        add("filtered/limits/" + kind, [&](auto& state) { filter(state, index, query); });
        add("filtered/texts/" + kind, [&](auto& state) { filter(state, texts, query); });
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
