// Every record of the packaged release, told by the program and told anew from the file itself.

#include "detail/OpenMapInspector.h"
#include "detail/OpenMapSources.h"
#include "tests/support/ReleaseBuilder.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <gtest/gtest.h>

namespace vasker {
namespace {

const QByteArray& file() {
    static const QByteArray bytes = [] {
        QFile packaged(QStringLiteral(VASKER_RESOURCES "/OpenMap.json"));
        return packaged.open(QIODevice::ReadOnly) ? packaged.readAll() : QByteArray();
    }();
    return bytes;
}

QString text(const QJsonValue& object, const char* key) {
    return object[QLatin1String(key)].toString();
}

const QMap<QString, QString> labels{
    {QStringLiteral("lng_plant"), QStringLiteral("LNG facility")},
    {QStringLiteral("gas_plant"), QStringLiteral("Gas plant")},
    {QStringLiteral("straddle_plant"), QStringLiteral("Straddle plant")},
    {QStringLiteral("fractionation"), QStringLiteral("Fractionation plant")},
    {QStringLiteral("oil_sands_plant"), QStringLiteral("Oil sands plant")},
    {QStringLiteral("oil_sands_insitu"), QStringLiteral("In-situ oil sands")},
    {QStringLiteral("processing"), QStringLiteral("Reporting facility")},
    {QStringLiteral("other"), QStringLiteral("Unclassified facility")}};

const QMap<QString, QString> shortNames{
    {QStringLiteral("npri-facility-locations-2024"), QStringLiteral("NPRI")},
    {QStringLiteral("ghgrp-facility-emissions"), QStringLiteral("GHGRP")},
    {QStringLiteral("gem-goit-pipelines"), QStringLiteral("GEM oil/NGL pipelines")},
    {QStringLiteral("gem-ggit-pipelines"), QStringLiteral("GEM gas pipelines")},
    {QStringLiteral("gem-ggit-lng-terminals"), QStringLiteral("GEM LNG terminals")}};

// Any other packaged kind is one word to the rule for labels, underscores included.
QString labelOf(const QString& kind) {
    return labels.value(kind, kind.left(1).toUpper() + kind.mid(1).toLower());
}

QString creditText(const QJsonValue& source) {
    return QStringLiteral("credit ") + QStringList{text(source, "publisher"),
                                                   text(source, "attribution"),
                                                   text(source, "conditions"),
                                                   text(source, "modifications"),
                                                   text(source, "sourceURL"),
                                                   text(source, "licenceURL")}
                                           .join(QLatin1Char('|'));
}

QStringList toldAnew(const QJsonValue& asset, const QJsonArray& sources) {
    QStringList lines{text(asset, "name"),
                      labelOf(text(asset, "kind")) + QStringLiteral(" · ") + text(asset, "id"),
                      text(asset, "asOf"),
                      text(asset, "status")};
    if (asset[u"reportedCompany"].isString()) {
        lines += text(asset, "reportedCompany");
    }
    QMap<QString, int> cited{{text(asset, "sourceID"), 1}};
    const QJsonArray facts = asset[u"facts"].toArray();
    for (const auto& fact : facts) {
        const QString id = text(fact, "sourceID");
        ++cited[id];
        for (const auto& source : sources) {
            if (text(source, "id") == id) {
                lines += QStringList{text(fact, "label"),
                                     text(fact, "value"),
                                     shortNames.value(text(source, "dataset")) +
                                         QStringLiteral(" · ") + text(fact, "asOf"),
                                     text(source, "sourceURL")};
            }
        }
    }
    for (const auto& source : sources) {
        if (cited.contains(text(source, "id"))) {
            lines += creditText(source);
        }
    }
    return lines << (asset[u"routes"].toArray().isEmpty() ? QStringLiteral("Publisher-reported")
                                                          : QStringLiteral("Route vertices"));
}

QString creditText(const OpenMapCredit& credit) {
    return QStringLiteral("credit ") + QStringList{credit.publisher,
                                                   credit.attribution,
                                                   credit.conditions,
                                                   credit.modifications,
                                                   credit.sourceAddress(),
                                                   credit.licenceAddress()}
                                           .join(QLatin1Char('|'));
}

QStringList told(const OpenMapInspector& inspector) {
    QStringList lines{inspector.name, inspector.subtitle, inspector.period, inspector.status};
    if (inspector.hasCompany()) {
        lines += inspector.companyName();
    }
    for (const OpenMapFact& fact : inspector.facts) {
        lines += QStringList{fact.label, fact.value, fact.linkTitle(), fact.linkAddress()};
    }
    for (const OpenMapCredit& credit : inspector.credits) {
        lines += creditText(credit);
    }
    return lines << inspector.location.section(
               QLatin1Char(' '), 0, inspector.location.startsWith(u'R') ? 1 : 0);
}

TEST(RealRelease, IsToldRecordByRecordAsItsFileSays) {
    const std::string bytes = file().toStdString();
    const OpenMapRelease release = decoded(bytes);
    const QJsonObject root = QJsonDocument::fromJson(file()).object();
    const QJsonArray assets = root[u"assets"].toArray();
    const QJsonArray sources = root[u"sources"].toArray();
    ASSERT_GT(assets.size(), 1000);
    ASSERT_EQ(static_cast<std::size_t>(assets.size()), release.assets.size());
    for (qsizetype at = 0; at < assets.size(); ++at) {
        const OpenMapRelease::Asset& asset = release.assets[static_cast<std::size_t>(at)];
        const QStringList wanted = toldAnew(assets[at], sources);
        const QStringList got = told(OpenMapInspector::of(release, asset));
        ASSERT_EQ(got.join(QLatin1Char('\n')).toStdString(),
                  wanted.join(QLatin1Char('\n')).toStdString())
            << "record " << at;
    }
}

TEST(RealRelease, IsToldAsAWholeAsItsFileSays) {
    const std::string bytes = file().toStdString();
    const OpenMapSources sources = OpenMapSources::of(decoded(bytes));
    const QJsonObject root = QJsonDocument::fromJson(file()).object();
    qsizetype routes = 0;
    for (const auto& asset : root[u"assets"].toArray()) {
        routes += asset[u"routes"].toArray().isEmpty() ? 0 : 1;
    }
    EXPECT_EQ(sources.coverageName, root[u"coverageName"].toString());
    EXPECT_EQ(sources.counts.toStdString(),
              std::to_string(root[u"assets"].toArray().size()) + " records · " +
                  std::to_string(routes) + " routes");
    EXPECT_EQ(QVariant(sources.limitations).toList(),
              root[u"limitations"].toArray().toVariantList());
    QStringList credits;
    for (const OpenMapCredit& credit : sources.credits) {
        credits += creditText(credit);
    }
    QStringList wanted;
    for (const auto& source : root[u"sources"].toArray()) {
        wanted += creditText(source);
    }
    EXPECT_EQ(credits.join(QLatin1Char('\n')).toStdString(),
              wanted.join(QLatin1Char('\n')).toStdString());
}

} // namespace
} // namespace vasker
