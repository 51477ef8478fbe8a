"""What the user reads, to the letter, when the release cannot be opened. Nothing else is shown."""

from bundle import RELEASE, changed, digest, encoded, program_with, program_with_release
from driver import Missed, Program

REASSURANCE = (
    " Reinstall this beta from its original distributor."
    " Your private Vasker library has not been opened."
)
OVERSIZED = "The bundled map exceeds its size limit."
CHECKSUM = "The bundled map does not match this app release."
SCHEMA = "The bundled map uses an unsupported format."
RECORDS = "The bundled map has incomplete or repeated records."
PROVENANCE = "The bundled map is missing source and licence information."
COORDINATES = "The bundled map contains invalid coordinates."

KEY = "VaskerOpenMapSHA256"
CONTENT = encoded(RELEASE)
ASSET = ("assets", 0)


def expect(copy, message):
    with copy as executable, Program(executable) as program:
        screen = program.see(id="open-map-error")
        expected = [
            ("role", screen.role, "alert"),
            ("name", screen.name, "Map unavailable"),
            ("description", screen.description, message + REASSURANCE),
            ("texts", screen.names(), ["Map unavailable", "Map unavailable", message + REASSURANCE]),
            ("all names", program.windows()[0].names(), ["Vasker Beta"] + screen.names()),
        ]
        for what, found, wanted in expected:
            if found != wanted:
                raise Missed(f"{what}: {found!r}, not {wanted!r}")
        buttons = program.windows()[0].find_all(role="push button")
        if buttons:
            raise Missed(f"there is something to press: {buttons}")


def refused(executable, release, message):
    expect(program_with_release(executable, release), message)


def resources_are_missing(executable):
    right = digest(CONTENT)
    for content, information in [
        (None, {KEY: right}),
        (CONTENT, None),
        (CONTENT, {}),
        (CONTENT, {KEY: ""}),
        (CONTENT, {KEY: 12}),
        (CONTENT, {KEY: [right]}),
    ]:
        expect(program_with(executable, content, information), PROVENANCE)


def the_digest_does_not_match(executable):
    right = digest(CONTENT)
    for wrong in ["0" * 64, right.upper(), right + "\n", right[:-1]]:
        expect(program_with(executable, CONTENT, {KEY: wrong}), CHECKSUM)


def the_file_is_too_large(executable):
    refused(executable, CONTENT + b" " * (15_000_001 - len(CONTENT)), OVERSIZED)


def the_format_is_another(executable):
    refused(executable, changed("schemaVersion", to=2), SCHEMA)
    refused(executable, changed("extra", to=1), SCHEMA)
    refused(executable, changed("sources", 0, "extra", to=1), SCHEMA)
    refused(executable, changed(*ASSET, "extra", to=1), SCHEMA)
    refused(executable, changed(*ASSET, "facts", 0, "extra", to=1), SCHEMA)


def records_are_incomplete(executable):
    refused(executable, changed(*ASSET, "name", to=""), RECORDS)
    refused(executable, changed(*ASSET, "id", to=RELEASE["assets"][1]["id"]), RECORDS)
    refused(executable, changed("assets", to=[]), RECORDS)
    refused(executable, changed("generatedAt", to="2025-01-31"), RECORDS)


def sources_are_incomplete(executable):
    refused(executable, changed("sources", 0, "attribution", to=""), PROVENANCE)
    refused(executable, changed("sources", 0, "sourceURL", to="http://example.org"), PROVENANCE)
    refused(executable, changed(*ASSET, "sourceID", to="1" * 64), PROVENANCE)


def coordinates_are_invalid(executable):
    refused(executable, changed(*ASSET, "latitude", to=90.5), COORDINATES)
    refused(executable, changed(*ASSET, "longitude", to=-180.5), COORDINATES)
    refused(executable, changed(*ASSET, "routes", to=[[[-112.0, 54.0]]]), COORDINATES)


def the_system_or_the_parser_says_no(executable):
    """Their own words are shown as they are."""
    with program_with(executable, None, {KEY: digest(CONTENT)}) as copy:
        (copy.parent / "resources/OpenMap.json").mkdir()
        with Program(copy) as program:
            screen = program.see(id="open-map-error")
            if screen.description != "Is a directory" + REASSURANCE:
                raise Missed(screen.text())
    for content in [b"{", b"[]", encoded({"schemaVersion": 1})]:
        with program_with_release(executable, content) as copy, Program(copy) as program:
            screen = program.see(id="open-map-error")
            words = screen.description.removesuffix(REASSURANCE)
            print(words)
            if not words or words == screen.description or words.startswith("The bundled map"):
                raise Missed(screen.text())


def a_copy_with_a_valid_release_opens(executable):
    """The proof that the copies above fail for their own reasons."""
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        program.miss(id="open-map-error")
