-- As land_near, with all islands.
SELECT ST_Union(geometry) AS geometry FROM (
    SELECT geometry FROM land
    UNION ALL
    SELECT ST_Difference(ST_MakePolygon(ST_ExteriorRing(geometry)), $WINDOW) FROM world_land_50m
    WHERE NOT ST_Within(geometry, $WINDOW))
