<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<!-- Where the text of the development is not true of this program on this system. -->
<context>
    <name>vasker::OpenMapSources</name>
    <message>
        <source>This beta has no account, advertising, analytics or location tracking. Search and filters run on your device. Apple Maps downloads its basemap from Apple; source links open the publisher's website. Those services receive the requests you make to them.</source>
        <translation>This beta has no account, advertising, analytics or location tracking. Search and filters run on your device. Map tiles come from OpenStreetMap, and imagery from NASA; source links open the publisher's website. Those services receive the requests you make to them.</translation>
    </message>
</context>
</TS>
