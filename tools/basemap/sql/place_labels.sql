-- Towns. Their kinds follow from their people, as a traveller's map would have it.
SELECT CASE WHEN place.type = 'Admin-0 capital' THEN 'capital'
            WHEN place.type IN ('Admin-1 capital', 'Admin-0 region capital') THEN 'state_capital'
            WHEN place.population >= 50000 THEN 'city'
            WHEN place.population >= 3000 THEN 'town'
            ELSE 'village' END AS kind,
       CAST(place.population AS INTEGER) AS population,
       place.scalerank AS rank,
       min(7, max(1, CAST(place.min_zoom - 1 AS INTEGER))) AS first_zoom,
       coalesce(names.name, place.name) AS name, names.name_en, names.name_fr,
       place.geometry
FROM populated_places AS place
LEFT JOIN names ON names.layer = 'place' AND names.source_name = place.name
                AND names.country = place.country
ORDER BY rank, population DESC, place.name
