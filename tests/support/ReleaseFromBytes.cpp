#include "tests/support/ReleaseFromBytes.h"

#include "tests/support/ReleaseBuilder.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

namespace {

/// The bytes that are left; zeros at the end.
class Choices {
  public:
    explicit Choices(std::span<const std::uint8_t> bytes) : m_left(bytes) {}
    [[nodiscard]] bool areLeft() const { return !m_left.empty(); }

    /// Returns a number from 0 to `count - 1`; `count` is at most 256.
    std::size_t below(std::size_t count) {
        if (m_left.empty()) {
            return 0;
        }
        const std::size_t byte = m_left.front();
        m_left = m_left.subspan(1);
        return byte % count;
    }

    template <typename Element>
    Element& among(std::vector<Element>& elements) {
        return elements[below(std::min<std::size_t>(elements.size(), 256))];
    }

  private:
    std::span<const std::uint8_t> m_left;
};

std::string repeated(std::string_view text, std::size_t count) {
    std::string result;
    for (; count > 0; --count) {
        result += text;
    }
    return result;
}

/// A text of ASCII that the bytes spell out.
std::string spelled(Choices& choices) {
    std::string text;
    for (std::size_t left = choices.below(40); left > 0; --left) {
        text += static_cast<char>(choices.below(0x80));
    }
    return text;
}

std::string text(Choices& choices) {
    static const std::vector<std::string> known = {
        "",
        " ",
        "x",
        "npri-facility-locations-2024",
        "ghgrp-facility-emissions",
        "gem-goit-pipelines",
        "gem-ggit-pipelines",
        "gem-ggit-lng-terminals",
        "GEM-ggit-pipelines",
        sourceID(0),
        sourceID(1),
        sourceID(0) + "0",
        repeated("\uFF21", 64),
        repeated("\uFF47", 64),
        repeated("F", 63),
        repeated("aF", 32),
        "https://example.ca/data",
        "https://user@example.ca/",
        "http://example.ca/",
        "HTTPS://example.ca/",
        "https:///data",
        "2024-02-29T23:59:59Z",
        "2023-02-29T23:59:59Z",
        "2024-01-01T00:00:00+05:30",
        "2024-01-01T00:00:00.5Z",
        repeated("n", 1'000),
        repeated("n", 1'001),
        repeated("e\u0301", 1'000),
        repeated("\U0001F1E8\U0001F1E6", 1'001),
        repeated("v", 10'000),
        repeated("v", 10'001),
        repeated("\u1100\u1161\u11A8", 10'000),
    };
    const std::size_t chosen = choices.below(known.size() + 8);
    return chosen < known.size() ? known[chosen] : spelled(choices);
}

double number(Choices& choices) {
    constexpr std::array<double, 16> known = {0,
                                              -0.0,
                                              90,
                                              -90,
                                              90.00000000000001,
                                              -90.00000000000001,
                                              180,
                                              -180,
                                              180.00000000000003,
                                              -180.00000000000003,
                                              1e300,
                                              -1e300,
                                              5e-324,
                                              53.5,
                                              -113.5,
                                              9.3e18};
    return known[choices.below(known.size())];
}

template <typename Record, typename Make>
void changeCount(std::vector<Record>& records, Choices& choices, std::size_t limit, Make make) {
    const std::array<std::size_t, 8> counts = {0, 1, 2, 3, 4, limit - 1, limit, limit + 1};
    const std::size_t count = counts.at(choices.below(counts.size()));
    while (records.size() > count) {
        records.pop_back();
    }
    while (records.size() < count) {
        records.push_back(make(records.size()));
    }
}

void changeSource(OpenMapRelease::Source& source, Choices& choices) {
    const std::array fields = {&source.id,
                               &source.publisher,
                               &source.dataset,
                               &source.sourceURL,
                               &source.licenceURL,
                               &source.attribution,
                               &source.conditions,
                               &source.modifications};
    *fields.at(choices.below(fields.size())) = text(choices);
}

void changeFact(OpenMapRelease::Fact& fact, Choices& choices) {
    const std::array fields = {&fact.label, &fact.value, &fact.sourceID, &fact.asOf};
    *fields.at(choices.below(fields.size())) = text(choices);
}

void changeRoutes(std::vector<OpenMapRelease::Route>& routes, Choices& choices) {
    switch (choices.below(4)) {
    case 0:
        return changeCount(routes, choices, 10, [](std::size_t) { return makeRoute(2); });
    case 1:
        if (!routes.empty()) {
            constexpr std::array<std::size_t, 6> sizes = {0, 1, 2, 3, 100'000, 299'998};
            choices.among(routes) = makeRoute(sizes.at(choices.below(sizes.size())));
        }
        return;
    default:
        if (!routes.empty() && !routes.back().empty()) {
            choices.among(routes.back()) = {number(choices), number(choices)};
        }
    }
}

void changeAsset(OpenMapRelease::Asset& asset, Choices& choices) {
    const std::array fields = {&asset.id,
                               &asset.name,
                               &asset.kind,
                               &asset.jurisdiction,
                               &asset.sourceID,
                               &asset.status,
                               &asset.asOf};
    switch (choices.below(8)) {
    case 0:
        asset.longitude = number(choices);
        return;
    case 1:
        asset.latitude = number(choices);
        return;
    case 2:
        asset.reportedCompany = text(choices);
        return;
    case 3:
        return changeCount(asset.facts, choices, 50, [](std::size_t) { return makeFact(); });
    case 4:
        if (!asset.facts.empty()) {
            changeFact(choices.among(asset.facts), choices);
        }
        return;
    case 5:
        return changeRoutes(asset.routes, choices);
    default:
        *fields.at(choices.below(fields.size())) = text(choices);
    }
}

void change(OpenMapRelease& release, Choices& choices) {
    constexpr std::size_t rarely = 64; // a large release takes long to write and to read
    switch (choices.below(16)) {
    case 0:
        release.releaseID = text(choices);
        return;
    case 1:
        release.coverageName = text(choices);
        return;
    case 2:
        release.generatedAt = text(choices);
        return;
    case 3:
        release.limitations = std::vector<std::string>(choices.below(3), "A limitation.");
        return;
    case 4:
        return changeCount(release.sources, choices, 100, makeSource);
    case 5:
        return changeCount(
            release.assets, choices, choices.below(rarely) == 1 ? 10'000 : 10, makeAsset);
    case 6:
    case 7:
    case 8:
        if (!release.sources.empty()) {
            changeSource(choices.among(release.sources), choices);
        }
        return;
    default:
        if (!release.assets.empty()) {
            changeAsset(choices.among(release.assets), choices);
        }
    }
}

} // namespace

OpenMapRelease releaseFrom(std::span<const std::uint8_t> bytes) {
    constexpr int mostSteps = 32;
    OpenMapRelease release = makeRelease();
    Choices choices(bytes);
    for (int step = 0; step < mostSteps && choices.areLeft(); ++step) {
        change(release, choices);
    }
    return release;
}

} // namespace vasker
