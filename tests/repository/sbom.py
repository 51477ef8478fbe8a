#!/usr/bin/python3
"""The lists of what the packages are made of: their form, that they are complete, and that they come out
the same each time.

Usage: sbom.py PROJECT PROGRAM_DOCUMENT DATA_DOCUMENT PROGRAM...
"""

import hashlib
import json
import re
import subprocess
import sys
import tempfile
from pathlib import Path

DOCUMENT_FIELDS = {
    "spdxVersion", "dataLicense", "SPDXID", "name", "documentNamespace", "creationInfo",
    "hasExtractedLicensingInfos", "packages", "relationships",
}
PACKAGE_FIELDS = {
    "name", "SPDXID", "downloadLocation", "filesAnalyzed", "licenseConcluded", "licenseDeclared",
    "copyrightText", "supplier",
}
IDENTIFIER = re.compile(r"SPDXRef-[A-Za-z0-9.-]+")
RELATIONS = {"DESCRIBES", "CONTAINS", "GENERATED_FROM", "STATIC_LINK", "DYNAMIC_LINK"}
LICENCE_WORDS = re.compile(r"[A-Za-z0-9.+-]+")


def has_form(document):
    assert set(document) == DOCUMENT_FIELDS, set(document) ^ DOCUMENT_FIELDS
    assert (document["spdxVersion"], document["dataLicense"]) == ("SPDX-2.3", "CC0-1.0")
    assert document["SPDXID"] == "SPDXRef-DOCUMENT"
    assert re.fullmatch(r"https://[^#]+", document["documentNamespace"])
    creation = document["creationInfo"]
    assert re.fullmatch(r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ", creation["created"])
    assert creation["creators"]
    for creator in creation["creators"]:
        assert re.match("(Organization|Tool|Person): .", creator), creator
    own_licences = {each["licenseId"] for each in document["hasExtractedLicensingInfos"]}
    for package in document["packages"]:
        assert PACKAGE_FIELDS <= set(package), package
        assert all(value not in (None, "", []) for value in package.values()), package
        assert IDENTIFIER.fullmatch(package["SPDXID"]), package
        for licence in (package["licenseConcluded"], package["licenseDeclared"]):
            words = set(LICENCE_WORDS.findall(licence))
            assert {word for word in words if word.startswith("LicenseRef-")} <= own_licences, package
    identifiers = [each["SPDXID"] for each in document["packages"]]
    assert len(identifiers) == len(set(identifiers)), sorted(identifiers)
    related = set()
    for relation in document["relationships"]:
        ends = {relation["spdxElementId"], relation["relatedSpdxElement"]}
        assert ends <= {*identifiers, "SPDXRef-DOCUMENT"}, relation
        assert relation["relationshipType"] in RELATIONS, relation
        related |= ends
    assert related == {*identifiers, "SPDXRef-DOCUMENT"}, "a package is related to nothing"


def names_what_is_bundled(document, project):
    packages = {each["name"]: each for each in document["packages"]}
    notice = (project / "NOTICE").read_text("utf-8")
    for name in re.findall(r"resources/\w+\.\w+", notice):
        digest = hashlib.sha256((project / name).read_bytes()).hexdigest()
        assert packages[name]["checksums"][0]["checksumValue"] == digest, name
    # A resource that is added is named in both.
    data = [each.name for each in (project / "resources").glob("[!.]*.*")]
    for name in set(data) - {"README.md", "BundleInformation.json"}:
        assert f"resources/{name}" in packages and f"resources/{name}" in notice, name
    publishers = {each["supplier"].partition(": ")[2] for each in document["packages"]} | set(packages)
    release = json.loads((project / "resources/OpenMap.json").read_text("utf-8"))
    assert {each["publisher"] for each in release["sources"]} <= publishers
    assert {each["sourceURL"] for each in release["sources"]} <= {
        each.get("homepage") for each in document["packages"]
    }
    for maker in ("Natural Earth", "NASA Earth Observatory", "Global Energy Monitor"):
        assert maker in " ".join(notice.split()) and maker in publishers, maker


def names_what_is_linked(document, programs):
    listed = [each for each in document["relationships"] if each["relationshipType"].endswith("_LINK")]
    linked = {each["relatedSpdxElement"] for each in listed}
    for package in document["packages"]:
        if package["SPDXID"] in linked:
            assert package["licenseDeclared"] != "NOASSERTION", f"whose licence is {package['name']}?"
            assert package["versionInfo"], package
    for program in programs:
        libraries = subprocess.run(["ldd", program], capture_output=True, text=True, check=True).stdout
        for library in ("libQt6Core", "libicuuc", "libsimdjson", "libcsv", "libsqlite3"):
            start = {"libQt6Core": "libqt6core", "libicuuc": "libicu"}.get(library, library)
            if library in libraries:
                assert any(start in each.lower() for each in linked), library


def comes_out_the_same(document, project, programs):
    words = [document["packages"][0]["name"], document["packages"][0]["versionInfo"], "0", *programs]
    with tempfile.TemporaryDirectory() as folder:
        made = []
        for number in range(2):
            output = Path(folder) / str(number)
            subprocess.run(
                [sys.executable, "-B", project / "packaging/sbom.py", output, *words], check=True
            )
            made.append(output.read_bytes())
    assert made[0] == made[1]
    found = json.loads(made[0])
    assert found["creationInfo"]["created"] == "1970-01-01T00:00:00Z"
    assert found["packages"] == document["packages"], "the document is of another build"


def main():
    project, program_document, data_document, *programs = map(Path, sys.argv[1:])
    for path, linked in ((program_document, programs), (data_document, [])):
        document = json.loads(path.read_text("utf-8"))
        has_form(document)
        names_what_is_bundled(document, project)
        comes_out_the_same(document, project, linked)
        if linked:
            names_what_is_linked(document, linked)


if __name__ == "__main__":
    main()
