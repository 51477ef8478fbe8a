-- Seas, bays and lakes: one point of each, ours where label_points.tsv has one. Where the source cuts
-- one in pieces, the largest names it. A lake without a French name of its own gets the French word
-- for a lake, as French maps of Canada have it.
WITH waters AS (
    SELECT name, lower(type) AS kind, scalerank, min_label, ST_Area(geometry) AS area, geometry
    FROM marine_label_polys
    WHERE name NOT LIKE '%OCEAN'
    UNION ALL
    SELECT name, CASE type WHEN 'Reservoir' THEN 'reservoir' ELSE 'water' END, scalerank, min_label,
           ST_Area(geometry), geometry
    FROM (SELECT * FROM lakes UNION ALL SELECT * FROM lakes_north_america)
    WHERE name IS NOT NULL
)
SELECT kind, rank, first_zoom, name, name_en, name_fr, geometry
FROM label_points WHERE layer = 'water'
UNION ALL
SELECT water.kind, water.scalerank, max(0, min(7, CAST(water.min_label - 1 AS INTEGER))),
       coalesce(names.name, water.name), names.name_en,
       CASE WHEN names.source_name IS NOT NULL THEN names.name_fr
            WHEN water.name LIKE '% Lake' THEN 'Lac ' || substr(water.name, 1, length(water.name) - 5)
            WHEN water.name LIKE '% Lakes' THEN 'Lacs ' || substr(water.name, 1, length(water.name) - 6)
            WHEN water.name LIKE 'Lake %' THEN 'Lac ' || substr(water.name, 6)
            WHEN water.name LIKE '% Reservoir'
            THEN 'Réservoir ' || substr(water.name, 1, length(water.name) - 10) END,
       ST_PointOnSurface(water.geometry)
FROM waters AS water
LEFT JOIN names ON names.layer = 'water' AND names.source_name = water.name
WHERE water.name NOT IN (SELECT name FROM label_points) AND NOT EXISTS (
    SELECT 1 FROM waters AS other
    WHERE other.name = water.name AND other.area > water.area
      AND abs(MbrMinX(other.geometry) - MbrMinX(water.geometry)) < 4
      AND abs(MbrMinY(other.geometry) - MbrMinY(water.geometry)) < 3)
ORDER BY 2, 4
