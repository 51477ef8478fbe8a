-- The one hole in the world's land. In the tiles it is a lake: from far GDAL loses holes (flood-tiles
-- tells why).
SELECT ST_Difference(ST_MakePolygon(ST_ExteriorRing(geometry)), geometry) AS geometry
FROM world_land_50m WHERE NumInteriorRing(geometry) > 0
