#include "data/export/GeoJsonExport.h"

#include "data/JsonText.h"
#include "data/export/NumberText.h"

#include <set>
#include <string>
#include <string_view>

namespace vasker {
namespace {

/// A member of an object with the comma before it, where one is due.
void addMember(std::string& text, std::string_view key, std::string_view value) {
    if (text.back() != '{') {
        text += ',';
    }
    appendJsonText(text, key);
    text += ':';
    appendJsonText(text, value);
}

void addCitation(std::string& text, std::string_view period, const OpenMapRelease::Source& source) {
    addMember(text, "period", period);
    addMember(text, "source", source.shortName());
    addMember(text, "licence", source.licenceURL);
    addMember(text, "attribution", source.attribution);
}

void addPosition(std::string& text, double longitude, double latitude) {
    text += '[' + numberText(longitude) + ',' + numberText(latitude) + ']';
}

void addGeometry(std::string& text, const OpenMapRelease::Asset& record) {
    if (!record.hasRoute()) {
        text += R"({"type":"Point","coordinates":)";
        addPosition(text, record.longitude, record.latitude);
        text += '}';
        return;
    }
    text += R"({"type":"MultiLineString","coordinates":[)";
    for (const OpenMapRelease::Route& route : record.routes) {
        text += text.back() == ']' ? ",[" : "[";
        for (const OpenMapRelease::Position& position : route) {
            if (text.back() == ']') {
                text += ',';
            }
            addPosition(text, position.longitude, position.latitude);
        }
        text += ']';
    }
    text += "]}";
}

void addFacts(std::string& text,
              const OpenMapRelease::Asset& record,
              const OpenMapRelease& release) {
    text += R"(,"facts":[)";
    for (const OpenMapRelease::Fact& fact : record.facts) {
        text += text.back() == '}' ? ",{" : "{";
        addMember(text, "label", fact.label);
        addMember(text, "value", fact.value);
        addCitation(text, fact.asOf, *release.source(fact.sourceID));
        text += '}';
    }
    text += ']';
}

void addFeature(std::string& text,
                const OpenMapRelease::Asset& record,
                const OpenMapRelease& release) {
    const OpenMapRelease::Source& source = *release.source(record.sourceID);
    text += R"({"type":"Feature","geometry":)";
    addGeometry(text, record);
    text += R"(,"properties":{)";
    addMember(text, "id", record.id);
    addMember(text, "name", record.name);
    addMember(text, "category", record.category());
    addMember(text, "category_key", record.kind);
    addMember(text, "jurisdiction", record.jurisdiction);
    addMember(text, "status", record.status);
    if (record.reportedCompany) {
        addMember(text, "company", *record.reportedCompany);
    }
    text += ",\"latitude\":" + numberText(record.latitude) +
            ",\"longitude\":" + numberText(record.longitude);
    addCitation(text, record.asOf, source);
    addMember(text, "publisher", source.publisher);
    addMember(text, "page", source.sourceURL);
    addFacts(text, record, release);
    text += "}}";
}

/// The sources that `records` and their facts cite, in the order of the release.
void addSources(std::string& text,
                const OpenMapRelease& release,
                std::span<const AssetIndex> records) {
    std::set<std::string_view> cited;
    for (const AssetIndex place : records) {
        cited.insert(release.assets[place].sourceID);
        for (const OpenMapRelease::Fact& fact : release.assets[place].facts) {
            cited.insert(fact.sourceID);
        }
    }
    text += ",\"sources\":[";
    for (const OpenMapRelease::Source& source : release.sources) {
        if (!cited.contains(source.id)) {
            continue;
        }
        text += text.back() == '}' ? ",\n{" : "\n{";
        addMember(text, "source", source.shortName());
        addMember(text, "publisher", source.publisher);
        addMember(text, "page", source.sourceURL);
        addMember(text, "licence", source.licenceURL);
        addMember(text, "attribution", source.attribution);
        addMember(text, "conditions", source.conditions);
        addMember(text, "modifications", source.modifications);
        addMember(text, "sha256", source.id);
        text += '}';
    }
    text += ']';
}

} // namespace

ExportOutcome exportGeoJson(const OpenMapRelease& release,
                            std::span<const AssetIndex> records,
                            const ExportHeader& header,
                            const ExportSink& sink) {
    ExportBuffer buffer(sink);
    std::string& text = buffer.text();
    text += '{';
    addMember(text, "type", "FeatureCollection");
    addMember(text, "name", "records");
    addMember(text, "release", header.releaseID);
    addMember(text, "sha256", header.digest);
    addMember(text, "query", header.query);
    addMember(text, "filter", header.filter);
    addSources(text, release, records);
    text += ",\n\"features\":[";
    bool isFirst = true;
    for (const AssetIndex place : records) {
        text += isFirst ? "\n" : ",\n";
        isFirst = false;
        addFeature(text, release.assets[place], release);
        if (!buffer.advance()) {
            return buffer.finish();
        }
    }
    text += "\n]}\n";
    return buffer.finish();
}

} // namespace vasker
