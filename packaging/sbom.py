#!/usr/bin/python3
"""Writes what the program, or its data alone, is made of, as an SPDX 2.3 document in JSON.

    sbom.py OUTPUT NAME VERSION SECONDS [PROGRAM ...]

SECONDS since 1970 are the document's time. Of each PROGRAM the libraries that it links are listed, with
the version of the Debian package that has them; where the system has no such packages, by their names
alone. The rest is what the project bundles. The same input gives the same bytes.
"""

import datetime
import hashlib
import json
import re
import subprocess
import sys
from pathlib import Path

PROJECT = Path(__file__).resolve().parent.parent
HOME_PAGE = "https://vasker.ca/open-map"
MAINTAINERS = "The Vasker maintainers"
NOBODY_SAID = "NOASSERTION"
PUBLIC_DOMAIN = "LicenseRef-public-domain"

LICENCES_OF_DATA = f"Apache-2.0 AND OGL-Canada-2.0 AND CC-BY-4.0 AND {PUBLIC_DOMAIN}"
# Of the sources of the release, by the address of their licence.
DATA_LICENCES = {
    "https://open.canada.ca/en/open-government-licence-canada": "OGL-Canada-2.0",
    "https://creativecommons.org/licenses/by/4.0/": "CC-BY-4.0",
}
# Of what is linked, by the beginning of the package's name.
LIBRARY_LICENCES = {
    "libc6": "LGPL-2.1-or-later",
    "libcsv": "LGPL-2.1-or-later",
    "libgcc-s1": "GPL-3.0-or-later WITH GCC-exception-3.1",
    "libicu": "ICU",
    "libprotozero": "BSD-2-Clause",
    "libqt6": "LGPL-3.0-only OR GPL-2.0-only OR GPL-3.0-only",
    "libsimdjson": "Apache-2.0",
    "libsqlite3": "blessing",
    "libssl3": "Apache-2.0",
    "libstdc++6": "GPL-3.0-or-later WITH GCC-exception-3.1",
    "libtomlplusplus": "MIT",
    "liburiparser": "BSD-3-Clause",
    "nlohmann-json3": "MIT",
    "zlib1g": "Zlib",
}
# Libraries that are compiled into the programs and linked by no name.
HEADERS = ["libprotozero-dev", "libtomlplusplus-dev", "nlohmann-json3-dev"]


def identifier(name):
    return "SPDXRef-" + re.sub(r"[^A-Za-z0-9.]+", "-", name).strip("-")


def package(name, version, licence, **more):
    found = {
        "name": name,
        "SPDXID": identifier(name),
        "versionInfo": version,
        "supplier": NOBODY_SAID,
        "downloadLocation": NOBODY_SAID,
        "filesAnalyzed": False,
        "licenseConcluded": licence,
        "licenseDeclared": licence,
        "copyrightText": NOBODY_SAID,
    }
    found.update(more)
    return {key: value for key, value in found.items() if value is not None}


def own(name, version, licence="Apache-2.0"):
    return package(
        name,
        version,
        licence,
        supplier=f"Organization: {MAINTAINERS}",
        homepage=HOME_PAGE,
        copyrightText=f"2026 {MAINTAINERS}",
    )


def resource(name, version, licence, **more):
    path = PROJECT / "resources" / name
    checksum = {"algorithm": "SHA256", "checksumValue": hashlib.sha256(path.read_bytes()).hexdigest()}
    return package(
        f"resources/{name}", version, licence, packageFileName=name, checksums=[checksum], **more
    )


def release_sources(release):
    """Each publication once that the release is made of; its files are told apart in the release."""
    found = {}
    for source in release["sources"]:
        name = f"{source['publisher']}: {source['dataset']}, {source['sourceURL']}"
        licence = DATA_LICENCES[source["licenceURL"]]
        found[name] = package(
            name,
            None,
            licence,
            SPDXID=identifier(f"source-{len(found) + 1}") if name not in found else found[name]["SPDXID"],
            supplier=f"Organization: {source['publisher']}",
            homepage=source["sourceURL"],
            attributionTexts=[source["attribution"]],
        )
    return list(found.values())


def basemap_sources():
    return {
        "basemap.mbtiles": package(
            "Natural Earth",
            None,
            PUBLIC_DOMAIN,
            homepage="https://www.naturalearthdata.com/",
        ),
        "imagery.mbtiles": package(
            "Blue Marble",
            None,
            PUBLIC_DOMAIN,
            supplier="Organization: NASA Earth Observatory",
        ),
    }


def linked_libraries(programs):
    names = set()
    for program in programs:
        lines = subprocess.run(
            ["readelf", "--dynamic", "--wide", program], capture_output=True, text=True, check=True
        ).stdout
        names.update(re.findall(r"\(NEEDED\).*\[(.+)\]", lines))
    return sorted(names)


def ask_packages(*words):
    """What dpkg-query says; nothing where it knows nothing, or is not there."""
    try:
        return subprocess.run(["dpkg-query", *words], capture_output=True, text=True).stdout
    except FileNotFoundError:
        return ""


def architecture():
    try:
        return subprocess.run(
            ["dpkg", "--print-architecture"], capture_output=True, text=True
        ).stdout.strip()
    except FileNotFoundError:
        return ""


def library_packages(programs):
    names = set(HEADERS)
    for library in linked_libraries(programs):
        owners = re.findall(r"^(\S+): ", ask_packages("--search", f"*/{library}"), re.MULTILINE)
        # Not a package that has it for other processors.
        native = [each for each in owners if each.endswith(f":{architecture()}")] or owners
        names.add(native[0] if native else library)
    found = {}
    for name in sorted(names):
        bare = name.partition(":")[0]
        version = ask_packages("--show", "--showformat=${Version}", name) or None
        licences = [each for start, each in LIBRARY_LICENCES.items() if bare.startswith(start)]
        found[bare] = package(bare, version, licences[0] if licences else NOBODY_SAID)
    return list(found.values())


def related(one, relation, other):
    return {
        "spdxElementId": one["SPDXID"],
        "relationshipType": relation,
        "relatedSpdxElement": other["SPDXID"],
    }


def content(name, version, programs):
    """The packages, the first of which is what the document is about, and how they are related."""
    about = own(name, version) if programs else own(name, version, LICENCES_OF_DATA)
    release = json.loads((PROJECT / "resources/OpenMap.json").read_text("utf-8"))
    bundled = resource("OpenMap.json", release["releaseID"], "OGL-Canada-2.0 AND CC-BY-4.0")
    sources = release_sources(release)
    packages = [about, bundled, *sources]
    relations = [related(about, "CONTAINS", bundled)]
    relations += [related(bundled, "GENERATED_FROM", each) for each in sources]
    for file, source in basemap_sources().items():
        licence = "Apache-2.0" if file == "basemap.mbtiles" else PUBLIC_DOMAIN
        archive = resource(file, version, licence)
        packages += [archive, source]
        relations += [
            related(about, "CONTAINS", archive),
            related(archive, "GENERATED_FROM", source),
        ]
    if programs:
        for name in ("resources/icons", "resources/translations"):
            drawn = own(name, version)
            packages.append(drawn)
            relations.append(related(about, "CONTAINS", drawn))
        for library in library_packages(programs):
            packages.append(library)
            is_compiled_in = library["name"] in HEADERS
            relations.append(related(about, "STATIC_LINK" if is_compiled_in else "DYNAMIC_LINK", library))
    return packages, relations


def document(name, version, seconds, programs):
    packages, relations = content(name, version, programs)
    digest = hashlib.sha256(json.dumps(packages, sort_keys=True).encode()).hexdigest()
    created = datetime.datetime.fromtimestamp(seconds, datetime.timezone.utc)
    described = {
        "spdxElementId": "SPDXRef-DOCUMENT",
        "relationshipType": "DESCRIBES",
        "relatedSpdxElement": packages[0]["SPDXID"],
    }
    return {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": "SPDXRef-DOCUMENT",
        "name": f"{name}-{version}",
        # Of no page: what tells this document from every other.
        "documentNamespace": f"{HOME_PAGE}/spdx/{name}-{version}-{digest}",
        "creationInfo": {
            "created": created.strftime("%Y-%m-%dT%H:%M:%SZ"),
            "creators": [f"Organization: {MAINTAINERS}", "Tool: packaging-sbom"],
        },
        "hasExtractedLicensingInfos": [
            {
                "licenseId": PUBLIC_DOMAIN,
                "name": "Public domain",
                "extractedText": "In the public domain: no permission is needed to use it.",
            }
        ],
        "packages": packages,
        "relationships": [described, *relations],
    }


def main():
    output, name, version, seconds, *programs = sys.argv[1:]
    text = json.dumps(document(name, version, int(seconds), programs), indent=2, ensure_ascii=False)
    Path(output).write_text(text + "\n", "utf-8")


if __name__ == "__main__":
    main()
