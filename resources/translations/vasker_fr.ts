<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutSheet</name>
    <message>
        <source>About Vasker Beta</source>
        <translation>À propos de Vasker Beta</translation>
    </message>
    <message>
        <source>Vasker Beta</source>
        <translation>Vasker Beta</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A map of Canadian energy infrastructure from one packaged release of open data, each value with its source and its period. No account, no log; it edits nothing.</source>
        <translation>Une carte de l’infrastructure énergétique canadienne, tirée d’une édition de données ouvertes fournie avec le programme; chaque valeur avec sa source et sa période. Pas de compte, pas de journal; il ne modifie rien.</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Environment and Climate Change Canada</source>
        <translation>Environnement et Changement climatique Canada</translation>
    </message>
    <message>
        <source>Open Government Licence – Canada</source>
        <translation>Licence du gouvernement ouvert – Canada</translation>
    </message>
    <message>
        <source>Public domain</source>
        <translation>Domaine public</translation>
    </message>
    <message>
        <source>© OpenStreetMap contributors</source>
        <translation>© les contributeurs d’OpenStreetMap</translation>
    </message>
    <message>
        <source>“Sources &amp; coverage” tells the sources of this release one by one. None of these publishers endorses this program.</source>
        <translation>« Sources et couverture » donne les sources de cette édition une à une. Aucun de ces éditeurs ne cautionne ce programme.</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliothèques</translation>
    </message>
    <message>
        <source>Unicode licence</source>
        <translation>Licence Unicode</translation>
    </message>
    <message>
        <source>Inter, the typeface</source>
        <translation>Inter, la police de caractères</translation>
    </message>
</context>
<context>
    <name>Catalogue</name>
    <message>
        <source>Check the spelling or try a new search.</source>
        <translation>Vérifiez l’orthographe ou essayez une autre recherche.</translation>
    </message>
</context>
<context>
    <name>Category</name>
    <message>
        <source>LNG facility</source>
        <translation>Installation de GNL</translation>
    </message>
    <message>
        <source>Gas plant</source>
        <translation>Usine de traitement du gaz</translation>
    </message>
    <message>
        <source>Straddle plant</source>
        <translation>Usine de chevauchement</translation>
    </message>
    <message>
        <source>Fractionation plant</source>
        <translation>Usine de fractionnement</translation>
    </message>
    <message>
        <source>Oil sands plant</source>
        <translation>Usine de traitement de sables bitumineux</translation>
    </message>
    <message>
        <source>In-situ oil sands</source>
        <translation>Sables bitumineux in situ</translation>
    </message>
    <message>
        <source>Reporting facility</source>
        <translation>Installation déclarante</translation>
    </message>
    <message>
        <source>Unclassified facility</source>
        <translation>Installation non classée</translation>
    </message>
    <message>
        <source>Refinery</source>
        <translation>Raffinerie</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>Pipeline</source>
        <translation>Pipeline</translation>
    </message>
    <message>
        <source>Petrochemical</source>
        <translation>Pétrochimie</translation>
    </message>
    <message>
        <source>Asphalt_plant</source>
        <translation>Usine d’asphalte</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie de production</translation>
    </message>
    <message>
        <source>Compressor_station</source>
        <translation>Station de compression</translation>
    </message>
    <message>
        <source>Dehydrator</source>
        <translation>Déshydrateur</translation>
    </message>
    <message>
        <source>Extraction_plant</source>
        <translation>Usine d’extraction</translation>
    </message>
    <message>
        <source>Gas_distribution</source>
        <translation>Distribution de gaz</translation>
    </message>
    <message>
        <source>Gas_gathering_system</source>
        <translation>Réseau de collecte de gaz</translation>
    </message>
    <message>
        <source>Injection_facility</source>
        <translation>Installation d’injection</translation>
    </message>
    <message>
        <source>Offshore_platform</source>
        <translation>Plateforme extracôtière</translation>
    </message>
    <message>
        <source>Petroleum_products_plant</source>
        <translation>Usine de produits pétroliers</translation>
    </message>
    <message>
        <source>Pipeline_facility</source>
        <translation>Installation de pipeline</translation>
    </message>
    <message>
        <source>Pipeline_station</source>
        <translation>Station de pipeline</translation>
    </message>
    <message>
        <source>Satellite</source>
        <translation>Batterie satellite</translation>
    </message>
    <message>
        <source>Thermal_project</source>
        <translation>Projet thermique</translation>
    </message>
    <message>
        <source>Treating_facility</source>
        <translation>Installation de traitement</translation>
    </message>
    <message>
        <source>Well_site</source>
        <translation>Emplacement de puits</translation>
    </message>
</context>
<context>
    <name>FactLabel</name>
    <message>
        <source>Location basis</source>
        <translation>Origine de la position</translation>
    </message>
    <message>
        <source>NPRI ID</source>
        <translation>Identifiant INRP</translation>
    </message>
    <message>
        <source>Industry code (NAICS)</source>
        <translation>Code d’industrie (SCIAN)</translation>
    </message>
    <message>
        <source>Last report to the inventory</source>
        <translation>Dernière déclaration à l’inventaire</translation>
    </message>
    <message>
        <source>Key industrial sector</source>
        <translation>Secteur industriel clé</translation>
    </message>
    <message>
        <source>Land survey</source>
        <translation>Arpentage</translation>
    </message>
    <message>
        <source>Total emissions</source>
        <translation>Émissions totales</translation>
    </message>
    <message>
        <source>Nitrogen oxides to air</source>
        <translation>Oxydes d’azote dans l’air</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>Name in the report for %1</source>
        <translation>Nom dans la déclaration de %1</translation>
    </message>
    <message>
        <source>Company in the report for %1</source>
        <translation>Entreprise dans la déclaration de %1</translation>
    </message>
    <message>
        <source>GHGRP ID</source>
        <translation>Identifiant PDGES</translation>
    </message>
    <message>
        <source>GHGRP facility page</source>
        <translation>Page PDGES de l’installation</translation>
    </message>
    <message>
        <source>Industry</source>
        <translation>Industrie</translation>
    </message>
    <message>
        <source>Industry (GHGRP)</source>
        <translation>Industrie (PDGES)</translation>
    </message>
    <message>
        <source>Industry code (NAICS, GHGRP)</source>
        <translation>Code d’industrie (SCIAN, PDGES)</translation>
    </message>
    <message>
        <source>Facility name (GHGRP)</source>
        <translation>Nom de l’installation (PDGES)</translation>
    </message>
    <message>
        <source>Reporting company (GHGRP)</source>
        <translation>Entreprise déclarante (PDGES)</translation>
    </message>
    <message>
        <source>Petrinex codes</source>
        <translation>Codes Petrinex</translation>
    </message>
    <message>
        <source>Carbon dioxide (CO2)</source>
        <translation>Dioxyde de carbone (CO2)</translation>
    </message>
    <message>
        <source>Methane (CH4)</source>
        <translation>Méthane (CH4)</translation>
    </message>
    <message>
        <source>Nitrous oxide (N2O)</source>
        <translation>Oxyde nitreux (N2O)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>Société mère</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Propriétaire</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Exploitant</translation>
    </message>
    <message>
        <source>Last updated</source>
        <translation>Dernière mise à jour</translation>
    </message>
    <message>
        <source>GEM wiki page</source>
        <translation>Page du wiki de GEM</translation>
    </message>
    <message>
        <source>GEM project ID</source>
        <translation>Identifiant GEM du projet</translation>
    </message>
    <message>
        <source>GEM unit ID</source>
        <translation>Identifiant GEM de l’unité</translation>
    </message>
    <message>
        <source>GEM terminal ID</source>
        <translation>Identifiant GEM du terminal</translation>
    </message>
    <message>
        <source>Reported unit</source>
        <translation>Unité déclarée</translation>
    </message>
    <message>
        <source>Also known as</source>
        <translation>Aussi appelé</translation>
    </message>
    <message>
        <source>Facility type</source>
        <translation>Type d’installation</translation>
    </message>
    <message>
        <source>Fuel</source>
        <translation>Combustible</translation>
    </message>
    <message>
        <source>Fuel source</source>
        <translation>Source du combustible</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Coût</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Length, estimated</source>
        <translation>Longueur estimée</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Coordinate accuracy</source>
        <translation>Précision des coordonnées</translation>
    </message>
    <message>
        <source>Route accuracy</source>
        <translation>Précision du tracé</translation>
    </message>
    <message>
        <source>Route basis</source>
        <translation>Origine du tracé</translation>
    </message>
    <message>
        <source>Proposal year</source>
        <translation>Année de la proposition</translation>
    </message>
    <message>
        <source>Investment decision</source>
        <translation>Décision d’investissement</translation>
    </message>
    <message>
        <source>Construction year</source>
        <translation>Année de construction</translation>
    </message>
    <message>
        <source>Planned start year</source>
        <translation>Année de mise en service prévue</translation>
    </message>
    <message>
        <source>Start year</source>
        <translation>Année de mise en service</translation>
    </message>
    <message>
        <source>Stop year</source>
        <translation>Année d’arrêt</translation>
    </message>
    <message>
        <source>Shelved year</source>
        <translation>Année de mise en veilleuse</translation>
    </message>
    <message>
        <source>Cancelled year</source>
        <translation>Année d’annulation</translation>
    </message>
    <message>
        <source>Released: Nitrogen oxides (expressed as nitrogen dioxide)</source>
        <translation>Rejeté : oxydes d’azote (exprimés en dioxyde d’azote)</translation>
    </message>
    <message>
        <source>Released: PM2.5 - Particulate Matter &lt;= 2.5 Micrometers</source>
        <translation>Rejeté : PM2,5 – particules &lt;= 2,5 micromètres</translation>
    </message>
    <message>
        <source>Released: PM10 - Particulate Matter &lt;= 10 Micrometers</source>
        <translation>Rejeté : PM10 – particules &lt;= 10 micromètres</translation>
    </message>
    <message>
        <source>Released: Carbon monoxide</source>
        <translation>Rejeté : monoxyde de carbone</translation>
    </message>
    <message>
        <source>Released: Volatile Organic Compounds (VOCs)</source>
        <translation>Rejeté : composés organiques volatils (COV)</translation>
    </message>
    <message>
        <source>Released: Total particulate matter</source>
        <translation>Rejeté : particules totales</translation>
    </message>
    <message>
        <source>Released: Sulphur dioxide</source>
        <translation>Rejeté : dioxyde de soufre</translation>
    </message>
    <message>
        <source>Released: Xylene (all isomers)</source>
        <translation>Rejeté : xylène (tous les isomères)</translation>
    </message>
    <message>
        <source>Released: Toluene</source>
        <translation>Rejeté : toluène</translation>
    </message>
    <message>
        <source>Released: n-Hexane</source>
        <translation>Rejeté : n-hexane</translation>
    </message>
    <message>
        <source>Released: 1,2,4-Trimethylbenzene</source>
        <translation>Rejeté : 1,2,4-triméthylbenzène</translation>
    </message>
    <message>
        <source>Released: Ethylbenzene</source>
        <translation>Rejeté : éthylbenzène</translation>
    </message>
    <message>
        <source>Released: Total reduced sulphur (expressed as hydrogen sulphide)</source>
        <translation>Rejeté : soufre réduit total (exprimé en sulfure d’hydrogène)</translation>
    </message>
    <message>
        <source>Released: Hydrogen sulphide</source>
        <translation>Rejeté : sulfure d’hydrogène</translation>
    </message>
    <message>
        <source>Released: Benzene</source>
        <translation>Rejeté : benzène</translation>
    </message>
    <message>
        <source>Released: Formaldehyde</source>
        <translation>Rejeté : formaldéhyde</translation>
    </message>
    <message>
        <source>Released: Cyclohexane</source>
        <translation>Rejeté : cyclohexane</translation>
    </message>
    <message>
        <source>Released: Biphenyl</source>
        <translation>Rejeté : biphényle</translation>
    </message>
    <message>
        <source>Released: Methanol</source>
        <translation>Rejeté : méthanol</translation>
    </message>
    <message>
        <source>Released: Propylene</source>
        <translation>Rejeté : propylène</translation>
    </message>
    <message>
        <source>Released: Ammonia (total)</source>
        <translation>Rejeté : ammoniac (total)</translation>
    </message>
    <message>
        <source>Released: Aluminum (fume or dust only)</source>
        <translation>Rejeté : aluminium (fumée ou poussière seulement)</translation>
    </message>
    <message>
        <source>Released: Lead (and its compounds)</source>
        <translation>Rejeté : plomb (et ses composés)</translation>
    </message>
    <message>
        <source>Released: Naphthalene</source>
        <translation>Rejeté : naphtalène</translation>
    </message>
    <message>
        <source>Released: Phenanthrene</source>
        <translation>Rejeté : phénanthrène</translation>
    </message>
    <message>
        <source>Released: Pyrene</source>
        <translation>Rejeté : pyrène</translation>
    </message>
    <message>
        <source>Released: Ethylene</source>
        <translation>Rejeté : éthylène</translation>
    </message>
</context>
<context>
    <name>FailureScreen</name>
    <message>
        <source>Map unavailable</source>
        <translation>Carte non disponible</translation>
    </message>
</context>
<context>
    <name>GuideSheet</name>
    <message>
        <source>User guide</source>
        <translation>Guide d’utilisation</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Vasker Beta</source>
        <translation>Vasker Beta</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Canada</translation>
    </message>
    <message>
        <source>Sources &amp; coverage</source>
        <translation>Sources et couverture</translation>
    </message>
</context>
<context>
    <name>KindMenu</name>
    <message>
        <source>Layer</source>
        <translation>Couche</translation>
    </message>
</context>
<context>
    <name>KindPicker</name>
    <message>
        <source>Layer</source>
        <translation>Couche</translation>
    </message>
</context>
<context>
    <name>FactRow</name>
    <message>
        <source>Found by the search</source>
        <translation>Trouvé par la recherche</translation>
    </message>
</context>
<context>
    <name>LabelledRow</name>
    <message>
        <source>Found by the search</source>
        <translation>Trouvé par la recherche</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>LoadingScreen</name>
    <message>
        <source>Opening the bundled map…</source>
        <translation>Ouverture de la carte fournie…</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Vasker Beta</source>
        <translation>Vasker Beta</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Full screen ended</source>
        <translation>Fin du plein écran</translation>
    </message>
</context>
<context>
    <name>MapOptionsMenu</name>
    <message>
        <source>Map options</source>
        <translation>Options de la carte</translation>
    </message>
    <message>
        <source>Basemap</source>
        <translation>Fond de carte</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Satellite</source>
        <translation>Satellite</translation>
    </message>
    <message>
        <source>Hybrid</source>
        <translation>Hybride</translation>
    </message>
</context>
<context>
    <name>RecordMenu</name>
    <message>
        <source>Record</source>
        <translation>Fiche</translation>
    </message>
    <message>
        <source>Show details</source>
        <translation>Afficher les détails</translation>
    </message>
    <message>
        <source>Copy citation</source>
        <translation>Copier la référence</translation>
    </message>
    <message>
        <source>Copy coordinates</source>
        <translation>Copier les coordonnées</translation>
    </message>
</context>
<context>
    <name>PrimaryMenu</name>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Maj+S</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Maj+C</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guide d’utilisation</translation>
    </message>
    <message>
        <source>Save a picture at four times the size…</source>
        <translation>Enregistrer une image quatre fois plus grande…</translation>
    </message>
    <message>
        <source>Save the map as PDF or SVG…</source>
        <translation>Enregistrer la carte en PDF ou SVG…</translation>
    </message>
    <message>
        <source>Print the map…</source>
        <translation>Imprimer la carte…</translation>
    </message>
    <message>
        <source>Save a picture of the map…</source>
        <translation>Enregistrer une image de la carte…</translation>
    </message>
    <message>
        <source>Save a picture at twice the size…</source>
        <translation>Enregistrer une image deux fois plus grande…</translation>
    </message>
    <message>
        <source>Copy picture of the map</source>
        <translation>Copier l’image de la carte</translation>
    </message>
    <message>
        <source>Save the records shown…</source>
        <translation>Enregistrer les fiches affichées…</translation>
    </message>
    <message>
        <source>Main menu</source>
        <translation>Menu principal</translation>
    </message>
    <message>
        <source>New window</source>
        <translation>Nouvelle fenêtre</translation>
    </message>
    <message>
        <source>Records…</source>
        <translation>Fiches…</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>About Vasker Beta</source>
        <translation>À propos de Vasker Beta</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>OpenMapCredit</name>
    <message>
        <source>Source data</source>
        <translation>Données sources</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
</context>
<context>
    <name>OpenMapInspector</name>
    <message>
        <source>Found by the search</source>
        <translation>Trouvé par la recherche</translation>
    </message>
    <message>
        <source>Source period</source>
        <translation>Période de la source</translation>
    </message>
    <message>
        <source>Reported status</source>
        <translation>État déclaré</translation>
    </message>
    <message>
        <source>Reporting company</source>
        <translation>Entreprise déclarante</translation>
    </message>
    <message>
        <source>Reported information</source>
        <translation>Informations déclarées</translation>
    </message>
    <message>
        <source>Sources &amp; licences</source>
        <translation>Sources et licences</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
</context>
<context>
    <name>OpenMapSources</name>
    <message>
        <source>This release</source>
        <translation>Cette édition</translation>
    </message>
    <message>
        <source>Coverage &amp; limitations</source>
        <translation>Couverture et limites</translation>
    </message>
    <message>
        <source>Sources &amp; reuse</source>
        <translation>Sources et réutilisation</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Confidentialité</translation>
    </message>
</context>
<context>
    <name>RecordList</name>
    <message>
        <source>Records</source>
        <translation>Fiches</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>ShareMenu</name>
    <message>
        <source>Save a copy…</source>
        <translation>Enregistrer une copie…</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Copy file</source>
        <translation>Copier le fichier</translation>
    </message>
    <message>
        <source>Open with…</source>
        <translation>Ouvrir avec…</translation>
    </message>
    <message>
        <source>Share the open-data file</source>
        <translation>Partager le fichier de données ouvertes</translation>
    </message>
</context>
<context>
    <name>ShareRow</name>
    <message>
        <source>Share the open-data file</source>
        <translation>Partager le fichier de données ouvertes</translation>
    </message>
</context>
<context>
    <name>vasker::Citation</name>
    <message>
        <source>%1 (%2), %3</source>
        <translation>%1 (%2), %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Source data: %1</source>
        <translation>Données sources : %1</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licence : %1</translation>
    </message>
</context>
<context>
    <name>vasker::OpenMapApp</name>
    <message>
        <source>:/guide/en.md</source>
        <translation>:/guide/fr.md</translation>
    </message>
</context>
<context>
    <name>vasker::OpenMapInspector</name>
    <message>
        <source>Company and status describe the cited release. They do not establish the current operator or current operation.</source>
        <translation>L’entreprise et l’état décrivent l’édition citée. Ils n’établissent ni l’exploitant actuel ni l’exploitation actuelle.</translation>
    </message>
    <message>
        <source>Route vertices from the cited GEM release. No inferred connections are drawn.</source>
        <translation>Sommets du tracé tirés de l’édition citée de GEM. Aucun raccordement déduit n’est dessiné.</translation>
    </message>
    <message>
        <source>Publisher-reported location. Equipment position, physical-site boundary and survey precision are not established.</source>
        <translation>Emplacement déclaré par l’éditeur. La position des équipements, les limites physiques du site et la précision du levé ne sont pas établies.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>vasker::OpenMapSources</name>
    <message>
        <source>%1 records · %2 routes</source>
        <translation>%L1 fiches · %L2 tracés</translation>
    </message>
    <message>
        <source>%1 · packaged %2</source>
        <translation>%1 · préparée le %2</translation>
    </message>
    <message>
        <source>The packaged date is not the observation date. Each record shows its source period.</source>
        <translation>La date de préparation n’est pas la date d’observation. Chaque fiche indique la période de sa source.</translation>
    </message>
    <message>
        <source>Values and texts of publishers are shown in their own language.</source>
        <translation>Les valeurs et les textes des éditeurs sont affichés dans leur propre langue.</translation>
    </message>
    <message>
        <source>The data retain their source licences. Vasker app terms do not restrict your rights under OGL-Canada or CC BY 4.0. No government or publisher endorsement is implied.</source>
        <translation>Les données conservent les licences de leurs sources. Les conditions de l’application Vasker ne restreignent pas vos droits selon la LGO – Canada ou CC BY 4.0. Aucune approbation d’un gouvernement ou d’un éditeur n’est sous-entendue.</translation>
    </message>
    <message>
        <source>This beta has no account, advertising, analytics or location tracking. Search and filters run on your device. Apple Maps downloads its basemap from Apple; source links open the publisher's website. Those services receive the requests you make to them.</source>
        <translation>Cette version bêta n’a ni compte, ni publicité, ni mesure d’audience, ni suivi de position. La recherche et les filtres s’exécutent sur votre appareil. Près du sol, les tuiles de la carte viennent d’OpenStreetMap, et l’imagerie, de la NASA; les liens vers les sources ouvrent le site de l’éditeur. Ces services reçoivent les requêtes que vous leur adressez.</translation>
    </message>
    <message>
        <source>No private Vasker library or raw source documents are included. Data updates arrive in a new app release.</source>
        <translation>Aucune bibliothèque Vasker privée ni aucun document source brut n’est inclus. Les mises à jour des données arrivent avec une nouvelle version de l’application.</translation>
    </message>
</context>
<context>
    <name>ShortcutsSheet</name>
    <message>
        <source>First letters</source>
        <translation>Premières lettres</translation>
    </message>
    <message>
        <source>A record by its name</source>
        <translation>Une fiche par son nom</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guide d’utilisation</translation>
    </message>
    <message>
        <source>Save the records shown</source>
        <translation>Enregistrer les fiches affichées</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>New window</source>
        <translation>Nouvelle fenêtre</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Next control, previous control</source>
        <translation>Commande suivante, précédente</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Maj+Tab</translation>
    </message>
    <message>
        <source>Press a button, open a menu</source>
        <translation>Appuyer sur un bouton, ouvrir un menu</translation>
    </message>
    <message>
        <source>Enter or Space</source>
        <translation>Entrée ou Espace</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Fiches</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>From the search to the list</source>
        <translation>De la recherche à la liste</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Next, previous record</source>
        <translation>Fiche suivante, précédente</translation>
    </message>
    <message>
        <source>Down, Up</source>
        <translation>Bas, Haut</translation>
    </message>
    <message>
        <source>A page further, back</source>
        <translation>Une page plus loin, en arrière</translation>
    </message>
    <message>
        <source>Page Down, Page Up</source>
        <translation>Page suiv., Page préc.</translation>
    </message>
    <message>
        <source>First, last record</source>
        <translation>Première, dernière fiche</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Début, Fin</translation>
    </message>
    <message>
        <source>Pick a record</source>
        <translation>Choisir une fiche</translation>
    </message>
    <message>
        <source>Pick none</source>
        <translation>N’en choisir aucune</translation>
    </message>
    <message>
        <source>Records in a sheet</source>
        <translation>Fiches dans un volet</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Flèches</translation>
    </message>
    <message>
        <source>Sheets and menus</source>
        <translation>Volets et menus</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Scroll a sheet</source>
        <translation>Faire défiler un volet</translation>
    </message>
    <message>
        <source>Make the records sheet large, medium</source>
        <translation>Agrandir, réduire le volet des fiches</translation>
    </message>
    <message>
        <source>Ctrl+Up, Ctrl+Down</source>
        <translation>Ctrl+Haut, Ctrl+Bas</translation>
    </message>
    <message>
        <source>Full screen, and back</source>
        <translation>Plein écran, et retour</translation>
    </message>
    <message>
        <source>Another row of a menu</source>
        <translation>Une autre ligne d’un menu</translation>
    </message>
    <message>
        <source>Arrow keys or first letters</source>
        <translation>Flèches ou premières lettres</translation>
    </message>
    <message>
        <source>Main menu</source>
        <translation>Menu principal</translation>
    </message>
    <message>
        <source>Print the map</source>
        <translation>Imprimer la carte</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Zoom in, out</source>
        <translation>Zoom avant, arrière</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Pivoter</translation>
    </message>
    <message>
        <source>Shift+Left, Shift+Right</source>
        <translation>Maj+Gauche, Maj+Droite</translation>
    </message>
    <message>
        <source>Tilt</source>
        <translation>Incliner</translation>
    </message>
    <message>
        <source>Shift+Up, Shift+Down</source>
        <translation>Maj+Haut, Maj+Bas</translation>
    </message>
    <message>
        <source>North up, from above</source>
        <translation>Nord en haut, vue d’en haut</translation>
    </message>
    <message>
        <source>Overview of Canada</source>
        <translation>Vue d’ensemble du Canada</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Save a picture of the map</source>
        <translation>Enregistrer une image de la carte</translation>
    </message>
    <message>
        <source>Copy picture of the map</source>
        <translation>Copier l’image de la carte</translation>
    </message>
    <message>
        <source>Pick what is in the middle</source>
        <translation>Choisir ce qui est au milieu</translation>
    </message>
    <message>
        <source>To the nearest record in a direction</source>
        <translation>À la fiche la plus proche dans une direction</translation>
    </message>
    <message>
        <source>Ctrl+arrow keys</source>
        <translation>Ctrl+flèches</translation>
    </message>
    <message>
        <source>Next, previous record in view</source>
        <translation>Fiche suivante, précédente en vue</translation>
    </message>
    <message>
        <source>R, Shift+R</source>
        <translation>R, Maj+R</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Maj+S</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Maj+C</translation>
    </message>
</context>
<context>
    <name>WorkspaceView</name>
    <message>
        <source>Facility, pipeline or reporting company</source>
        <translation>Installation, pipeline ou entreprise déclarante</translation>
    </message>
</context>
<context>
    <name>vasker::KindListModel</name>
    <message>
        <source>All categories</source>
        <translation>Toutes les catégories</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Fiches : %L1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%L1</translation>
    </message>
</context>
<context>
    <name>vasker::FoundText</name>
    <message>
        <source>Id</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Reporting company</source>
        <translation>Entreprise déclarante</translation>
    </message>
    <message>
        <source>Jurisdiction</source>
        <translation>Province ou territoire</translation>
    </message>
    <message>
        <source>%1: </source>
        <translation>%1 : </translation>
    </message>
    <message>
        <source>Found in %1: %2</source>
        <translation>Trouvé dans « %1 » : %2</translation>
    </message>
</context>
<context>
    <name>vasker::RecordListModel</name>
    <message>
        <source>%1, %2, source period %3</source>
        <translation>%1, %2, période de la source : %3</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 records</source>
        <extracomment>%n: how many records are shown, %1: how many there are</extracomment>
        <translation>
            <numerusform>%Ln fiche sur %L1</numerusform>
            <numerusform>%Ln fiches sur %L1</numerusform>
        </translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Aucun résultat pour « %1 »</translation>
    </message>
</context>
<context>
    <name>Caption</name>
    <message>
        <source>Selected reporting records and routes. Dates and reporting boundaries vary; this is not a complete or survey-grade map.</source>
        <translation>Fiches et tracés choisis parmi les déclarations. Les dates et les périmètres de déclaration varient; cette carte n’est ni complète ni de précision topographique.</translation>
    </message>
</context>
<context>
    <name>Compass</name>
    <message>
        <source>Set north up</source>
        <translation>Orienter vers le nord</translation>
    </message>
</context>
<context>
    <name>MapCanvas</name>
    <message>
        <source>Canadian energy infrastructure map</source>
        <translation>Carte de l’infrastructure énergétique canadienne</translation>
    </message>
    <message>
        <source>Satellite imagery needs a network connection</source>
        <translation>L’imagerie satellite nécessite une connexion réseau</translation>
    </message>
    <message>
        <source>Sharper imagery needs a network connection</source>
        <translation>Une imagerie plus nette nécessite une connexion réseau</translation>
    </message>
    <message>
        <source>Arrow keys move the map, plus and minus zoom. Ctrl with an arrow key goes to the nearest record there; R and Shift+R go through the records in view. Enter opens the record.</source>
        <translation>Les flèches déplacent la carte, plus et moins changent l’échelle. Ctrl avec une flèche va à la fiche la plus proche de ce côté; R et Maj+R parcourent les fiches en vue. Entrée ouvre la fiche.</translation>
    </message>
</context>
<context>
    <name>PickList</name>
    <message numerus="yes">
        <source>%n records at this place</source>
        <translation>
            <numerusform>%Ln fiche à cet endroit</numerusform>
            <numerusform>%Ln fiches à cet endroit</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetFrame</name>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>SheetGrabber</name>
    <message>
        <source>Make the sheet larger</source>
        <translation>Agrandir le volet</translation>
    </message>
    <message>
        <source>Make the sheet smaller</source>
        <translation>Réduire le volet</translation>
    </message>
</context>
<context>
    <name>ScaleBar</name>
    <message>
        <source>Scale: %1</source>
        <translation>Échelle : %1</translation>
    </message>
</context>
<context>
    <name>ZoomButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
</context>
<context>
    <name>vasker::CameraReadout</name>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
</context>
<context>
    <name>vasker::FileDialogParts</name>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Parent folder</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>There is a file of this name already. Replace it?</source>
        <translation>Il y a déjà un fichier de ce nom. Le remplacer?</translation>
    </message>
</context>
<context>
    <name>vasker::RecordFile</name>
    <message>
        <source>its name has to end in .csv or .geojson.</source>
        <translation>son nom doit se terminer par .csv ou .geojson.</translation>
    </message>
    <message>
        <source>it would be larger than %1 MiB.</source>
        <translation>il dépasserait %1 Mio.</translation>
    </message>
</context>
<context>
    <name>vasker::SaveCommands</name>
    <message>
        <source>Save the map, as .pdf or .svg</source>
        <translation>Enregistrer la carte, en .pdf ou .svg</translation>
    </message>
    <message>
        <source>Taking the picture…</source>
        <translation>Prise de l’image…</translation>
    </message>
    <message>
        <source>Printing the map…</source>
        <translation>Impression de la carte…</translation>
    </message>
    <message>
        <source>Save a picture of the map, as .png</source>
        <translation>Enregistrer une image de la carte, en .png</translation>
    </message>
    <message>
        <source>The picture of the map is on the clipboard.</source>
        <translation>L’image de la carte est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Search: %1</source>
        <translation>Recherche : %1</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Catégorie : %1</translation>
    </message>
    <message>
        <source>Basemap: %1</source>
        <translation>Fond de carte : %1</translation>
    </message>
    <message>
        <source>Release: %1</source>
        <translation>Édition : %1</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>Enregistrement de %1…</translation>
    </message>
    <message>
        <source>Save the records shown, as .csv or .geojson</source>
        <translation>Enregistrer les fiches affichées, en .csv ou .geojson</translation>
    </message>
</context>
<context>
    <name>vasker::FileSaving</name>
    <message>
        <source>this desktop has no dialog to ask where.</source>
        <translation>ce bureau n’a pas de dialogue pour demander où.</translation>
    </message>
    <message>
        <source>that place is not on this computer.</source>
        <translation>cet emplacement n’est pas sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>The file could not be saved: %1</source>
        <translation>Le fichier n’a pas pu être enregistré : %1</translation>
    </message>
</context>
<context>
    <name>vasker::FileShare</name>
    <message>
        <source>Save a copy</source>
        <translation>Enregistrer une copie</translation>
    </message>
    <message>
        <source>No program was found that opens the folder: %1</source>
        <translation>Aucun programme n’a été trouvé pour ouvrir le dossier : %1</translation>
    </message>
    <message>
        <source>The file is on the clipboard.</source>
        <translation>Le fichier est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>The file could not be opened: %1</source>
        <translation>Le fichier n’a pas pu être ouvert : %1</translation>
    </message>
    <message>
        <source>No program was found that opens the file: %1</source>
        <translation>Aucun programme n’a été trouvé pour ouvrir le fichier : %1</translation>
    </message>
</context>
<context>
    <name>vasker::SystemBrowser</name>
    <message>
        <source>No browser was found that opens %1</source>
        <translation>Aucun navigateur n’a été trouvé pour ouvrir %1</translation>
    </message>
</context>
<context>
    <name>CountLine</name>
    <message>
        <source>Opens the list of records</source>
        <translation>Ouvre la liste des fiches</translation>
    </message>
</context>
<context>
    <name>InspectorSheet</name>
    <message>
        <source>Record</source>
        <translation>Fiche</translation>
    </message>
</context>
<context>
    <name>RecordsSheet</name>
    <message>
        <source>Records</source>
        <translation>Fiches</translation>
    </message>
    <message>
        <source>Name or reporting company</source>
        <translation>Nom ou entreprise déclarante</translation>
    </message>
</context>
<context>
    <name>SourcesSheet</name>
    <message>
        <source>Sources &amp; coverage</source>
        <translation>Sources et couverture</translation>
    </message>
</context>
<context>
    <name>vasker::PictureFile</name>
    <message>
        <source>its name has to end in .png, .pdf or .svg.</source>
        <translation>son nom doit se terminer par .png, .pdf ou .svg.</translation>
    </message>
</context>
<context>
    <name>vasker::Printing</name>
    <message>
        <source>This desktop has no dialog to print with. Save the map as PDF and print that.</source>
        <translation>Ce bureau n’a pas de dialogue d’impression. Enregistrez la carte en PDF et imprimez ce fichier.</translation>
    </message>
    <message>
        <source>the desktop did not take it.</source>
        <translation>le bureau ne l’a pas acceptée.</translation>
    </message>
    <message>
        <source>The map is on its way to the printer.</source>
        <translation>La carte a été envoyée à l’imprimante.</translation>
    </message>
    <message>
        <source>The map could not be printed: %1</source>
        <translation>La carte n’a pas pu être imprimée : %1</translation>
    </message>
</context>
<context>
    <name>vasker::Announcements</name>
    <message numerus="yes">
        <source>The map is open: %n records</source>
        <translation>
            <numerusform>La carte est ouverte : %Ln fiche</numerusform>
            <numerusform>La carte est ouverte : %Ln fiches</numerusform>
        </translation>
    </message>
    <message>
        <source>Picked: %1, %2</source>
        <translation>Choisi : %1, %2</translation>
    </message>
    <message>
        <source>Basemap: %1</source>
        <translation>Fond de carte : %1</translation>
    </message>
</context>
<context>
    <name>vasker::PlaceText</name>
    <message>
        <source>north</source>
        <translation>au nord</translation>
    </message>
    <message>
        <source>north-east</source>
        <translation>au nord-est</translation>
    </message>
    <message>
        <source>east</source>
        <translation>à l’est</translation>
    </message>
    <message>
        <source>south-east</source>
        <translation>au sud-est</translation>
    </message>
    <message>
        <source>south</source>
        <translation>au sud</translation>
    </message>
    <message>
        <source>south-west</source>
        <translation>au sud-ouest</translation>
    </message>
    <message>
        <source>west</source>
        <translation>à l’ouest</translation>
    </message>
    <message>
        <source>north-west</source>
        <translation>au nord-ouest</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 degrees south</source>
        <translation>%1 degrés sud</translation>
    </message>
    <message>
        <source>%1 degrees north</source>
        <translation>%1 degrés nord</translation>
    </message>
    <message>
        <source>%1 degrees west</source>
        <translation>%1 degrés ouest</translation>
    </message>
    <message>
        <source>%1 degrees east</source>
        <translation>%1 degrés est</translation>
    </message>
    <message>
        <source>here</source>
        <translation>ici</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>Nearest: %1, %2</source>
        <translation>Au plus près : %1, %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 depuis %2</translation>
    </message>
    <message>
        <source>no record in view</source>
        <translation>aucune fiche en vue</translation>
    </message>
    <message numerus="yes">
        <source>%n records in view</source>
        <translation>
            <numerusform>%Ln fiche en vue</numerusform>
            <numerusform>%Ln fiches en vue</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vasker::MapExplorer</name>
    <message>
        <source>No record in this direction</source>
        <translation>Aucune fiche dans cette direction</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
</TS>
