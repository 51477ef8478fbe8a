-- Closer: the window in detail but for its smallest islands, and the world around it. In one piece,
-- so that no two polygons overlap: the tiles' ocean is made of what they leave.
SELECT ST_Union(geometry) AS geometry FROM (
    SELECT geometry FROM land WHERE min_zoom < 6 OR min_zoom IS NULL
    UNION ALL
    SELECT ST_Difference(ST_MakePolygon(ST_ExteriorRing(geometry)), $WINDOW) FROM world_land_50m
    WHERE NOT ST_Within(geometry, $WINDOW))
