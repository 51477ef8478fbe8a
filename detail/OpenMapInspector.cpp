#include "detail/OpenMapInspector.h"

#include "detail/PromptCount.h"
#include "presentation/FactLabel.h"
#include "presentation/RecordText.h"

#include <algorithm>

namespace vasker {

namespace {

using Asset = OpenMapRelease::Asset;
using Fact = OpenMapRelease::Fact;
using Source = OpenMapRelease::Source;

std::optional<OpenMapFact::Link> provenance(const OpenMapRelease& release, const Fact& fact) {
    const Source* const source = release.source(fact.sourceID);
    const auto address = source == nullptr ? std::nullopt : linkAddress(source->sourceURL);
    if (!address) {
        return {};
    }
    return OpenMapFact::Link{sourceLine(*source, fact), *address};
}

bool cites(const Asset& asset, const Source& source) {
    return asset.sourceID == source.id || std::ranges::any_of(asset.facts, [&](const Fact& fact) {
               return fact.sourceID == source.id;
           });
}

QString locationText(const Asset& asset) {
    return asset.hasRoute()
               ? OpenMapInspector::tr("Route vertices from the cited GEM release. No inferred "
                                      "connections are drawn.")
               : OpenMapInspector::tr("Publisher-reported location. Equipment position, "
                                      "physical-site boundary and survey precision are not "
                                      "established.");
}

} // namespace

QString OpenMapFact::spokenText() const {
    //: A fact for a screen reader: its label and its value
    return OpenMapInspector::tr("%1, %2").arg(label, value);
}

OpenMapInspector OpenMapInspector::of(const OpenMapRelease& release,
                                      const Asset& asset,
                                      const std::optional<SearchedText>& found) {
    using Field = SearchedText::Field;
    const auto isFoundBy = [&](Field field) { return found && found->field == field; };
    OpenMapInspector inspector{.name = wholeText(asset.name),
                               .subtitle = recordSubtitle(asset),
                               .period = wholeText(asset.asOf),
                               .status = wholeText(asset.status),
                               .company = {},
                               .idFound = isFoundBy(Field::id),
                               .companyFound = isFoundBy(Field::company),
                               .caveat = tr("Company and status describe the cited release. They "
                                            "do not establish the current operator or current "
                                            "operation."),
                               .facts = {},
                               .credits = {},
                               .location = locationText(asset)};
    if (asset.reportedCompany) {
        inspector.company = wholeText(*asset.reportedCompany);
    }
    inspector.facts.reserve(asset.facts.size());
    for (const Fact& fact : asset.facts) {
        inspector.facts.push_back({.label = factLabel(fact.label),
                                   .value = wholeText(fact.value),
                                   .link = provenance(release, fact)});
    }
    if (isFoundBy(Field::fact)) {
        inspector.facts[found->fact].found = true;
    }
    for (const Source& source : release.sources) {
        if (cites(asset, source)) {
            inspector.credits.push_back(OpenMapCredit::of(source));
        }
    }
    return inspector;
}

QVariantList OpenMapInspector::factList() const {
    return valueList(facts);
}

int OpenMapInspector::promptFacts() const {
    return promptCount(
        facts, [](const OpenMapFact& fact) { return fact.label.size() + fact.value.size(); });
}

int OpenMapInspector::promptCredits() const {
    constexpr int rowsOfCredit = 2; // a credit is about as tall as two facts
    const int rowsLeft = std::max(0, mostPromptRows - static_cast<int>(facts.size()));
    return std::min(promptCount(credits), (rowsLeft + rowsOfCredit - 1) / rowsOfCredit);
}

} // namespace vasker
