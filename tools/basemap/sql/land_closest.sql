-- As land_closer, within the bounds of the detailed zooms, with the islets that the source has apart.
SELECT ST_Union(geometry) AS geometry FROM (
    SELECT geometry FROM land
    UNION ALL
    SELECT geometry FROM minor_islands
    UNION ALL
    SELECT ST_Intersection(ST_Difference(geometry, $WINDOW), $RIM) FROM world_land_50m
    WHERE NOT ST_Within(geometry, $WINDOW) AND ST_Intersects(geometry, $RIM))
