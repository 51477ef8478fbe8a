<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>Usine à gaz</translation>
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
        <translation>Usine de sables bitumineux</translation>
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
</context>
<context>
    <name>FailureScreen</name>
    <message>
        <source>Map unavailable</source>
        <translation>Carte non disponible</translation>
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
    <name>PrimaryMenu</name>
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
        <translation>Fiches : %1</translation>
    </message>
</context>
<context>
    <name>vasker::RecordListModel</name>
    <message>
        <source>%1, %2, source period %3</source>
        <translation>%1, %2, période de la source : %3</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 records</source>
        <extracomment>%n: how many records are shown, %1: how many there are</extracomment>
        <translation>
            <numerusform>%n fiche sur %1</numerusform>
            <numerusform>%n fiches sur %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Aucun résultat pour « %1 »</translation>
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
</context>
<context>
    <name>PickList</name>
    <message numerus="yes">
        <source>%n records at this place</source>
        <translation>
            <numerusform>%n fiche à cet endroit</numerusform>
            <numerusform>%n fiches à cet endroit</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetFrame</name>
    <message>
        <source>Done</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SheetGrabber</name>
    <message>
        <source>Make the sheet larger</source>
        <translation>Agrandir la feuille</translation>
    </message>
    <message>
        <source>Make the sheet smaller</source>
        <translation>Réduire la feuille</translation>
    </message>
</context>
<context>
    <name>ScaleBar</name>
    <message>
        <source>Scale: %1</source>
        <translation>Échelle : %1</translation>
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
    <name>SaveDialog</name>
    <message>
        <source>Save a copy</source>
        <translation>Enregistrer une copie</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>There is a file of this name already. Replace it?</source>
        <translation>Il y a déjà un fichier de ce nom. Le remplacer ?</translation>
    </message>
</context>
<context>
    <name>vasker::FileShare</name>
    <message>
        <source>Save a copy</source>
        <translation>Enregistrer une copie</translation>
    </message>
    <message>
        <source>The copy could not be saved: this desktop has no dialog to ask where.</source>
        <translation>La copie n’a pas pu être enregistrée : ce bureau n’a pas de dialogue pour demander où.</translation>
    </message>
    <message>
        <source>The copy could not be saved: that place is not on this computer.</source>
        <translation>La copie n’a pas pu être enregistrée : cet emplacement n’est pas sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>La copie n’a pas pu être enregistrée : %1</translation>
    </message>
    <message>
        <source>The folder could not be opened: %1</source>
        <translation>Le dossier n’a pas pu être ouvert : %1</translation>
    </message>
    <message>
        <source>The file is on the clipboard.</source>
        <translation>Le fichier est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>The file could not be opened: %1</source>
        <translation>Le fichier n’a pas pu être ouvert : %1</translation>
    </message>
</context>
</TS>
