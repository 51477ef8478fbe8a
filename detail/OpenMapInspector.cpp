#include "detail/OpenMapInspector.h"

#include "detail/PromptCount.h"

#include <algorithm>
#include <string_view>

namespace vasker {

namespace {

using Asset = OpenMapRelease::Asset;
using Fact = OpenMapRelease::Fact;
using Source = OpenMapRelease::Source;

const QString separator = QStringLiteral(" · ");

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The label of a category in the language of the interface: the application's own labels are
/// translated in one place for all views, any other label stays as it is.
QString categoryText(const Asset& asset) {
    const std::string label = asset.category();
    const bool isPlain = label.find('\0') == std::string::npos;
    return isPlain ? QCoreApplication::translate("Category", label.c_str()) : toQString(label);
}

std::optional<OpenMapFact::Link> provenance(const OpenMapRelease& release, const Fact& fact) {
    const Source* const source = release.source(fact.sourceID);
    const auto address = source == nullptr ? std::nullopt : linkAddress(source->sourceURL);
    if (!address) {
        return {};
    }
    return OpenMapFact::Link{toQString(source->shortName()) + separator + toQString(fact.asOf),
                             *address};
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

OpenMapInspector OpenMapInspector::of(const OpenMapRelease& release, const Asset& asset) {
    OpenMapInspector inspector{.name = toQString(asset.name),
                               .subtitle = categoryText(asset) + separator + toQString(asset.id),
                               .period = toQString(asset.asOf),
                               .status = toQString(asset.status),
                               .company = {},
                               .caveat = tr("Company and status describe the cited release. They "
                                            "do not establish the current operator or current "
                                            "operation."),
                               .facts = {},
                               .credits = {},
                               .location = locationText(asset)};
    if (asset.reportedCompany) {
        inspector.company = toQString(*asset.reportedCompany);
    }
    inspector.facts.reserve(asset.facts.size());
    for (const Fact& fact : asset.facts) {
        inspector.facts.push_back({.label = toQString(fact.label),
                                   .value = toQString(fact.value),
                                   .link = provenance(release, fact)});
    }
    for (const Source& source : release.sources) {
        if (cites(asset, source)) {
            inspector.credits.push_back(OpenMapCredit::of(source));
        }
    }
    return inspector;
}

QVariantList OpenMapInspector::factList() const {
    QVariantList list;
    list.reserve(static_cast<qsizetype>(facts.size()));
    for (const OpenMapFact& fact : facts) {
        list.append(QVariant::fromValue(fact));
    }
    return list;
}

int OpenMapInspector::promptFacts() const {
    return promptCount(
        facts, [](const OpenMapFact& fact) { return fact.label.size() + fact.value.size(); });
}

} // namespace vasker
