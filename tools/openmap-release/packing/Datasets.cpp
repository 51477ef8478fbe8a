#include "tools/openmap-release/packing/Datasets.h"

namespace vasker {
namespace {

constexpr const char* environmentCanada = "Environment and Climate Change Canada";
constexpr const char* energyMonitor = "Global Energy Monitor";

constexpr const char* npriPage =
    "https://open.canada.ca/data/en/dataset/40e01423-7728-429c-ac9d-2954385ccdfb";
constexpr const char* ghgrpPage =
    "https://open.canada.ca/data/en/dataset/756bc907-34bb-4b33-9a87-b3c1a6c3f292";
constexpr const char* oilTrackerPage =
    "https://globalenergymonitor.org/projects/global-oil-infrastructure-tracker/";
constexpr const char* gasTrackerPage =
    "https://globalenergymonitor.org/projects/global-gas-infrastructure-tracker/";

constexpr const char* openGovernmentLicence =
    "https://open.canada.ca/en/open-government-licence-canada";
constexpr const char* creativeCommonsLicence = "https://creativecommons.org/licenses/by/4.0/";

constexpr const char* openGovernmentAttribution =
    "Contains information licensed under the Open Government Licence – Canada.";
constexpr const char* openGovernmentConditions =
    "Copying, changing, publishing and any lawful use are allowed, commercial use too, where the "
    "source is acknowledged as above and, where possible, the licence is linked. Personal "
    "information, official marks and the rights of third parties are not licensed, nothing may "
    "suggest an official status or an endorsement, and there is no warranty.";
constexpr const char* creativeCommonsConditions =
    "Sharing and changing are allowed for any purpose, commercial use too, where credit is given, "
    "the licence is linked and changes are told. Nothing may suggest that the publisher endorses "
    "the use, and there is no warranty.";

std::string trackerAttribution(const std::string& tracker, std::string_view release) {
    return "Copyright © Global Energy Monitor. " + tracker + ", " + std::string(release) +
           " release. Distributed under a Creative Commons Attribution 4.0 International License.";
}

std::string count(std::size_t number, const std::string& things) {
    return std::to_string(number) + " " + things;
}

OpenMapRelease::Source governmentSource(std::string id, std::string dataset, std::string page) {
    return {std::move(id),
            environmentCanada,
            std::move(dataset),
            std::move(page),
            openGovernmentLicence,
            openGovernmentAttribution,
            openGovernmentConditions,
            ""};
}

OpenMapRelease::Source
trackerSource(std::string id, std::string dataset, std::string page, std::string attribution) {
    return {std::move(id),
            energyMonitor,
            std::move(dataset),
            std::move(page),
            creativeCommonsLicence,
            std::move(attribution),
            creativeCommonsConditions,
            ""};
}

const std::string kindSentence =
    "Categories were derived from industry codes and from words in the published names; they are "
    "not the publisher's. ";
const std::string cellSentence =
    "Values stand as published, without blanks around them and invisible characters; empty and "
    "\"n/a\" cells were left out, and so were addresses and contacts.";

std::string npriChanges(const PackTally& tally) {
    return "Vintage: facilities whose last report is for 2016 (Alberta) or 2015 (other provinces), "
           "not 2024. Selected before packing: oil and gas extraction, pipelines, storage, "
           "refining and other petroleum products, by NAICS code in Alberta and by key industrial "
           "sector elsewhere; codes of the NAICS are published here for Alberta only. " +
           count(tally.npri.taken, "rows became records; ") +
           count(tally.npri.withoutPosition.size(), "without a position were dropped. ") +
           count(tally.npriTablePositions,
                 "records keep this table's position, rounded to two decimals in its Alberta "
                 "rows; ") +
           count(tally.npriListPositions, "take that of the 2024 location list. ") + kindSentence +
           cellSentence;
}

std::string locationChanges(const PackTally& tally) {
    return "Vintage: the inventory's geolocation file as of late 2024. Only positions were used, "
           "joined by NPRI ID; " +
           count(tally.npriListPositions,
                 "records take theirs from here. Ids with several positions were left out before "
                 "packing.");
}

std::string ghgrpChanges(const PackTally& tally) {
    return "Vintage: results for 2021, in the table of large facilities of the Canadian "
           "Environmental Sustainability Indicators. Selected: NAICS 2111, 213119, 2212, 3241, "
           "486 and 412110; " +
           count(tally.ghgrpOtherIndustries, "rows of other industries were left out. ") +
           count(tally.ghgrpMerged.size(),
                 "facilities, whatever their industry, were joined to an NPRI record, which the "
                 "reporting program's own table for Alberta, 2004 to 2016, names for them in its "
                 "most recent year that names one; their values stand in ") +
           count(tally.npriRecordsWithGhgrp, "NPRI records. ") +
           count(tally.ghgrp.taken, "became records of their own; ") +
           count(tally.ghgrp.withoutPosition.size(),
                 "without a position (latitude and longitude 0) were dropped. ") +
           "The unit of emissions was shortened as the table does in parentheses. " + kindSentence +
           cellSentence;
}

std::string pipelineChanges(const PackTally::Pipelines& tally, std::string_view release) {
    return "Vintage: " + std::string(release) +
           " release; routes from the publisher's route repository as of " +
           std::string(period::routes) +
           ". Filtered to rows that list Canada and converted from a workbook before packing. " +
           count(tally.taken, "pipelines became records; ") +
           count(tally.withoutGeometry.size(), "without a geometry and ") +
           count(tally.outsideCanada.size(),
                 "whose geometry has no vertex inside Canada were dropped. ") +
           "Routes keep every published line and vertex, rounded to six decimals and neither "
           "simplified nor joined, beyond the border too; third coordinates and stray points "
           "were left out. A record's point is the vertex nearest to the middle of its longest "
           "line. Numbers are grouped by thousands; empty and \"--\" cells were left out.";
}

std::string terminalChanges(const PackTally& tally) {
    return "Vintage: " + std::string(period::terminals) +
           " release. Filtered to Canada and converted from a workbook before packing; one record "
           "for each unit of a terminal, " +
           count(tally.terminals.taken, "of them; ") +
           count(tally.terminals.withoutPosition.size(), "without a position were dropped. ") +
           "All have the category of LNG facilities. Numbers are grouped by thousands; empty and "
           "\"--\" cells were left out.";
}

} // namespace

std::vector<std::string> limitations() {
    return {
        "The sources describe different years: NPRI facilities 2015 and 2016, their positions "
        "mostly 2024, GHGRP emissions 2021, oil and NGL pipelines March 2025, LNG terminals "
        "September 2025, gas pipelines November 2025, pipeline routes April 2026. Nothing here is "
        "newer than the period shown beside it.",
        "This is a selection: facilities that reported to the two federal programs in oil and gas "
        "industries and met their thresholds, and pipelines and LNG terminals that the publisher "
        "tracks. A facility that is missing may exist; one that is shown may have closed, moved "
        "or changed hands.",
        "Some positions of NPRI facilities in Alberta are published with two decimals only, which "
        "can be more than half a kilometre from the site, and several facilities can share one "
        "position.",
        "Facilities and systems that are published without a position are left out, such as "
        "pipeline networks that report their emissions as a whole.",
        "Pipelines for which the publisher has no geometry, or none inside Canada, are left out. "
        "Lines are drawn as published; their accuracy varies, and some are straight lines "
        "between two places.",
        "Only some facilities could be joined across the two federal programs, all of them in "
        "Alberta; elsewhere one facility may appear once for each program.",
        "Categories come from industry codes and from words in names. \"Reporting facility\" "
        "means that neither tells what the facility is.",
        "Nothing here is a survey. Do not use it to find buried pipelines, to judge safety or "
        "risk, or to establish who owns or operates a facility today.",
    };
}

std::vector<OpenMapRelease::Source> sources(const SourceIds& ids, const PackTally& tally) {
    std::vector<OpenMapRelease::Source> list;
    list.push_back(governmentSource(ids.npriFacilities, "npri-facility-locations-2024", npriPage));
    list.back().modifications = npriChanges(tally);
    list.push_back(governmentSource(ids.npriLocations, "npri-facility-locations-2024", npriPage));
    list.back().modifications = locationChanges(tally);
    list.push_back(governmentSource(ids.ghgrpFacilities, "ghgrp-facility-emissions", ghgrpPage));
    list.back().modifications = ghgrpChanges(tally);
    list.push_back(trackerSource(
        ids.oilPipelines,
        "gem-goit-pipelines",
        oilTrackerPage,
        trackerAttribution("Global Oil Infrastructure Tracker", period::oilPipelines)));
    list.back().modifications = pipelineChanges(tally.oil, period::oilPipelines);
    list.push_back(trackerSource(
        ids.gasPipelines,
        "gem-ggit-pipelines",
        gasTrackerPage,
        trackerAttribution("Global Gas Infrastructure Tracker", period::gasPipelines)));
    list.back().modifications = pipelineChanges(tally.gas, period::gasPipelines);
    list.push_back(
        trackerSource(ids.terminals,
                      "gem-ggit-lng-terminals",
                      gasTrackerPage,
                      trackerAttribution("Global Gas Infrastructure Tracker", period::terminals)));
    list.back().modifications = terminalChanges(tally);
    return list;
}

} // namespace vasker
