-- Ice beyond the window, where the source has none. Antarctica, which is ice nearly everywhere; and
-- of Greenland east of the window what is a quarter of a degree of latitude from the sea: an
-- approximation that keeps the ice sheet from ending on a straight line. The polygon leads its
-- southern end to where the source has it.
SELECT ST_Intersection(geometry, BuildMbr(-180, -86, 180, -60, 4326)) AS geometry
FROM world_land_50m WHERE MbrMaxY(geometry) < -60
UNION ALL
SELECT ST_Intersection(
           ScaleCoords(ST_SimplifyPreserveTopology(
               ST_Buffer(ScaleCoords(geometry, 0.3, 1), -0.25), 0.04), 1 / 0.3, 1),
           ST_GeomFromText('POLYGON((-46 84, -46 62, -45.2 61.3, -44.2 61, -43 60.9, -10 60.9,
                                     -10 84, -46 84))', 4326))
FROM world_land_50m
WHERE ST_Intersects(geometry, BuildMbr(-40, 70, -39, 71, 4326))
