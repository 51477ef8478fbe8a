-- Seen from far: the whole world by the coarse tables, without the Caspian Sea (caspian_sea.sql).
SELECT ST_Intersection(ST_MakePolygon(ST_ExteriorRing(geometry)),
                       BuildMbr(-180, -86, 180, 86, 4326)) AS geometry
FROM world_land_50m
