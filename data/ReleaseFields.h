#pragma once
// The keys of the JSON objects of a release and the fields that they stand for, in the order of the
// file. ReleaseReader and ReleaseWriter go through these lists.

#include "data/OpenMapRelease.h"

#include <string_view>
#include <tuple>

namespace vasker {

template <typename Record, typename Value>
struct Field {
    std::string_view key;
    Value Record::*member;
};
template <typename Record, typename Value>
Field(std::string_view, Value Record::*) -> Field<Record, Value>;

/// The fields of `Record`. A field whose type is std::optional may be absent; all others are
/// required.
template <typename Record>
inline constexpr auto fieldsOf = std::tuple();

template <>
inline constexpr auto
    fieldsOf<OpenMapRelease> = std::tuple(Field{"schemaVersion", &OpenMapRelease::schemaVersion},
                                          Field{"releaseID", &OpenMapRelease::releaseID},
                                          Field{"generatedAt", &OpenMapRelease::generatedAt},
                                          Field{"coverageName", &OpenMapRelease::coverageName},
                                          Field{"limitations", &OpenMapRelease::limitations},
                                          Field{"sources", &OpenMapRelease::sources},
                                          Field{"assets", &OpenMapRelease::assets});

template <>
inline constexpr auto fieldsOf<OpenMapRelease::Source> =
    std::tuple(Field{"id", &OpenMapRelease::Source::id},
               Field{"publisher", &OpenMapRelease::Source::publisher},
               Field{"dataset", &OpenMapRelease::Source::dataset},
               Field{"sourceURL", &OpenMapRelease::Source::sourceURL},
               Field{"licenceURL", &OpenMapRelease::Source::licenceURL},
               Field{"attribution", &OpenMapRelease::Source::attribution},
               Field{"conditions", &OpenMapRelease::Source::conditions},
               Field{"modifications", &OpenMapRelease::Source::modifications});

template <>
inline constexpr auto fieldsOf<OpenMapRelease::Asset> =
    std::tuple(Field{"id", &OpenMapRelease::Asset::id},
               Field{"name", &OpenMapRelease::Asset::name},
               Field{"kind", &OpenMapRelease::Asset::kind},
               Field{"jurisdiction", &OpenMapRelease::Asset::jurisdiction},
               Field{"sourceID", &OpenMapRelease::Asset::sourceID},
               Field{"status", &OpenMapRelease::Asset::status},
               Field{"asOf", &OpenMapRelease::Asset::asOf},
               Field{"latitude", &OpenMapRelease::Asset::latitude},
               Field{"longitude", &OpenMapRelease::Asset::longitude},
               Field{"reportedCompany", &OpenMapRelease::Asset::reportedCompany},
               Field{"facts", &OpenMapRelease::Asset::facts},
               Field{"routes", &OpenMapRelease::Asset::routes});

template <>
inline constexpr auto
    fieldsOf<OpenMapRelease::Fact> = std::tuple(Field{"label", &OpenMapRelease::Fact::label},
                                                Field{"value", &OpenMapRelease::Fact::value},
                                                Field{"sourceID", &OpenMapRelease::Fact::sourceID},
                                                Field{"asOf", &OpenMapRelease::Fact::asOf});

template <typename Type>
concept HasFields = std::tuple_size_v<decltype(fieldsOf<Type>)> >
0;

} // namespace vasker
