#pragma once
// What those inputs start from that are short texts.

#include <array>
#include <string_view>

namespace vasker {

struct TextSeed {
    std::string_view input;
    std::string_view text;
};

inline constexpr std::array<TextSeed, 17> textSeeds{{
    {"text", "0ion\nStation 9\nSTATION 10\nMontr\u00e9al"},
    {"text", "1\u0130\n\u0131I\u0130i\ni\u0307"},
    {"text", "2x\u0302\nx\u0302\u0323\u0345"},
    // A run of marks so long that it is put in order by their classes at once.
    {"text",
     "0o"
     "\u0302\u0323\u0f73\U0001d165\u0302\u0323\u0f73\U0001d165\u0302\u0323\u0f73\U0001d165"
     "\u0302\u0323\u0f73\U0001d165\u0302\u0323\u0f73\U0001d165\u0302\u0323\u0f73\U0001d165"
     "\u0302\u0323\u0f73\U0001d165\u0302\u0323\u0f73\U0001d165\u0302\u0323\u0f73\U0001d165"
     "\u0302\u0323\u0f73\U0001d165\u0302\u0323\u0f73\U0001d165\u0302\u0323\u0f73\U0001d165"
     "\u0302\u0323\u0f73\U0001d165\u0302\u0323\u0f73\U0001d165\u0302\u0323\u0f73\U0001d165"},
    {"date-time", "2024-02-29T23:59:59Z"},
    {"date-time", "1900-12-31T00:00:00-05:30"},
    {"web-address", "https://example.ca:8443/a%20b?c=d#e"},
    {"web-address", "https://[2001:db8::1]/"},
    {"web-address", "https://[v1.a:b]"},
    {"preferences", "open-map.basemap=hybrid\nother=1\n"},
    {"preferences", "\nopen-map.basemap=\n=\nopen-map.basemap=x"},
    {"bundle",
     R"({"VaskerTileServices":{"imagery":[{"template":"https://a/{z}/{y}/{x}","firstZoom":0,"lastZoom":9}]}})"},
    {"archive",
     "CREATE TABLE metadata(name,value);CREATE TABLE map(zoom_level,tile_column,tile_row,id);\n"
     "INSERT INTO map VALUES(1,1,0,2);CREATE TABLE images(id,tile_data);"
     "INSERT INTO images VALUES(2,zeroblob(9));\n"
     "CREATE VIEW tiles AS SELECT zoom_level,tile_column,tile_row,tile_data"
     " FROM map JOIN images ON map.id=images.id"},
    {"archive",
     "CREATE TABLE metadata(name,value);CREATE VIEW tiles AS WITH RECURSIVE n(i) AS"
     " (SELECT 1 UNION ALL\nSELECT i+1 FROM n)"
     "SELECT 0 AS zoom_level,-i AS tile_column,0 AS tile_row,1 AS tile_data FROM n"},
    {"cache",
     "CREATE TABLE tile(address BLOB PRIMARY KEY, fresh_until INTEGER NOT NULL,"
     " looked_at INTEGER NOT NULL, entity_tag BLOB, last_modified BLOB, bytes BLOB NOT NULL);"
     "CREATE INDEX tile_looked_at ON tile(looked_at);CREATE VIEW v AS SELECT 1"},
    {"csv", "a,\"b\"\"c\"\r\n\"d\ne\",f\n"},
    {"geojson", R"({"type":"LineString","coordinates":[[-112.5,54],[-111,55.25]]})"},
}};

} // namespace vasker
