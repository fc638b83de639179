"""Fills in the manifests for winget and scoop and checks them against schemas that were written by
hand after the fields that both document.
Usage: manifests.py [--check]. Without --check they go into dist/manifests/, with the checksums of
dist/SHA256SUMS; with it only the templates are checked, with a checksum of zeros."""

import json
import os
import pathlib
import re
import sys

TEMPLATES = pathlib.Path("resources/manifests")
# The one place that knows where releases will be; there is no such host yet.
PLACEHOLDER = "https://releases.example.invalid/korvale"


def project_version():
    text = pathlib.Path("CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"^project\(Korvale VERSION ([\d.]+)", text, re.M).group(1)


def project_fact(name):
    text = pathlib.Path("CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(rf'^set\({name} "(.+)"\)', text, re.M).group(1)


def checksums():
    """File name to SHA-256, as sha256sum writes them."""
    lines = pathlib.Path("dist/SHA256SUMS").read_text(encoding="utf-8").splitlines()
    return {line[66:]: line[:64] for line in lines}


def facts(checking):
    version = project_version()
    setup = f"Korvale-{version}-win64-setup.exe"
    releases = os.environ.get("KORVALE_RELEASES_URL", PLACEHOLDER)
    return {
        "VERSION": version,
        "SETUP_URL": f"{releases}/v{version}/{setup}",
        "SETUP_SHA256": "0" * 64 if checking else checksums()[setup],
        "HOME_URL": os.environ.get("KORVALE_HOME_URL", PLACEHOLDER),
        "DESCRIPTION": project_fact("KORVALE_FILE_DESCRIPTION"),
        "COPYRIGHT": project_fact("KORVALE_LEGAL_COPYRIGHT"),
    }


def filled(template, values):
    text = template.read_text(encoding="utf-8")
    text = re.sub(r"@(\w+)@", lambda match: values[match.group(1)], text)
    kind = template.name.removesuffix(".in")
    folder = template.parent.name
    if folder == "winget":
        kind = f"Korvale.Korvale{'' if kind == 'version.yaml' else '.' + kind.removesuffix('.yaml')}"
        kind += ".yaml"
    return pathlib.Path(folder) / kind, text


def check(template, text):
    # Imported here: whoever only asks for the version needs neither.
    import jsonschema
    import yaml

    name = template.name.split(".")[0]
    schema = json.loads((TEMPLATES / f"schemas/{template.parent.name}-{name}.json").read_text())
    data = json.loads(text) if template.name.endswith("json.in") else yaml.safe_load(text)
    jsonschema.Draft7Validator.check_schema(schema)
    jsonschema.validate(data, schema, jsonschema.Draft7Validator)


def main():
    checking = sys.argv[1:] == ["--check"]
    values = facts(checking)
    templates = sorted(TEMPLATES.glob("*/*.in"))
    if len(templates) != 4:
        sys.exit("there should be three templates for winget and one for scoop")
    for template in templates:
        path, text = filled(template, values)
        check(template, text)
        if not checking:
            target = pathlib.Path("dist/manifests") / path
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_text(text, encoding="utf-8")
            print(target)
    if not checking and PLACEHOLDER in values["SETUP_URL"]:
        print("KORVALE_RELEASES_URL is not set: the addresses in them are placeholders")


if __name__ == "__main__":
    main()
