<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<!-- Where the text of the development is not true of this program on this system, and the forms of one. -->
<context>
    <name>vasker::OpenMapSources</name>
    <message>
        <source>This beta has no account, advertising, analytics or location tracking. Search and filters run on your device. Apple Maps downloads its basemap from Apple; source links open the publisher's website. Those services receive the requests you make to them.</source>
        <translation>This beta has no account, advertising, analytics or location tracking. Search and filters run on your device. Map tiles come from OpenStreetMap, and imagery from NASA; source links open the publisher's website. Those services receive the requests you make to them.</translation>
    </message>
</context>
<context>
    <name>vasker::Announcements</name>
    <message numerus="yes">
        <source>The map is open: %n records</source>
        <translation>
            <numerusform>The map is open: %n record</numerusform>
            <numerusform>The map is open: %n records</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vasker::PlaceText</name>
    <message numerus="yes">
        <source>%n records in view</source>
        <translation>
            <numerusform>%n record in view</numerusform>
            <numerusform>%n records in view</numerusform>
        </translation>
    </message>
</context>
</TS>
