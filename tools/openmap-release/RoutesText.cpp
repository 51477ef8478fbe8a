#include "tools/openmap-release/RoutesText.h"

#include "tools/openmap-release/packing/tables/Cells.h"

namespace vasker {

std::size_t routePoints(const OpenMapRelease::Asset& record) {
    std::size_t points = 0;
    for (const OpenMapRelease::Route& route : record.routes) {
        points += route.size();
    }
    return points;
}

std::string routesText(const OpenMapRelease::Asset& record) {
    return grouped(record.routes.size()) + (record.routes.size() == 1 ? " line, " : " lines, ") +
           grouped(routePoints(record)) + " vertices";
}

} // namespace vasker
