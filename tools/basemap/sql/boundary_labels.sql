-- Countries, and the states and provinces of the window.
SELECT 2 AS admin_level, rank, first_zoom, name, name_en, name_fr, geometry
FROM label_points WHERE layer = 'country'
UNION ALL
SELECT 4, CASE region.country WHEN 'CAN' THEN 1 ELSE 3 END,
       CAST(region.min_zoom - 1 AS INTEGER),
       coalesce(names.name, region.name), names.name_en, names.name_fr, region.geometry
FROM admin_1_label_points AS region
LEFT JOIN names ON names.layer = 'region' AND names.source_name = region.name
