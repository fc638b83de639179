"""Checks what can be checked of workflows without their host: they are YAML, every job has steps on
a named system, needs jobs that are there, runs actions of one version and scripts that are in the
checkout, and what its steps run in bash is valid. Usage: check_workflow.py FILE..."""

import os
import re
import subprocess
import sys

import yaml

# An expression of the host stands for some word.
EXPRESSION = re.compile(r"\$\{\{.*?\}\}")
problems = 0


def complain(what):
    global problems
    problems += 1
    print(what)


def check_step(where, step):
    if ("uses" in step) == ("run" in step):
        complain(f"{where}: a step either uses or runs")
    if "uses" in step and not re.fullmatch(r"[\w-]+/[\w-]+@v\d+\.\d+\.\d+", step["uses"]):
        complain(f"{where}: {step['uses']} is not one version")
    script = EXPRESSION.sub("x", step.get("run", ""))
    for name in re.findall(r"\bscript/[\w./]+", script):
        if not os.access(name, os.R_OK):
            complain(f"{where}: {name} is not there")
    shell = "#!/usr/bin/env bash\nset -eo pipefail\n" + script
    linted = subprocess.run(["shellcheck", "-"], input=shell, capture_output=True, text=True)
    if linted.returncode != 0:
        complain(f"{where}: {linted.stdout}")


for path in sys.argv[1:]:
    with open(path, encoding="utf-8") as file:
        workflow = yaml.safe_load(file)
    # YAML takes the key "on" for a truth value.
    if not {"name", True, "permissions", "jobs"} <= set(workflow):
        complain(f"{path}: name, on, permissions or jobs is missing")
    for name, job in workflow["jobs"].items():
        needs = job.get("needs", [])
        for other in [needs] if isinstance(needs, str) else needs:
            if other not in workflow["jobs"]:
                complain(f"{path}: {name} needs {other}")
        if "runs-on" not in job or not job.get("steps"):
            complain(f"{path}: {name} lacks runs-on or steps")
        for number, step in enumerate(job.get("steps", []), 1):
            check_step(f"{path}: {name}, step {number}", step)
sys.exit(1 if problems or len(sys.argv) < 2 else 0)
