"""Tests recipes for pipelines: usage: recipes.py SOURCES, in an empty folder, with ostra-params on the path."""
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

import yaml

SOURCES = pathlib.Path(sys.argv.pop()).resolve()
PAGE = (SOURCES / "docs/continuous-integration.md").read_text(encoding="utf-8")
CI = SOURCES / "tools/ostra-params/ci"
# PyYAML takes the key "on" for a truth, as YAML 1.1 has it.
GITHUB, GITLAB, AZURE, PRE_COMMIT = (yaml.safe_load(block) for block in re.findall(r"```yaml\n(.*?)```", PAGE, re.S))


def line(typeid, base, **constants):
    return json.dumps({"typeid": typeid, "inherits": [base],
                       "constants": [{"id": id, "value": value} for id, value in constants.items()]}) + "\n"


def group(typeid, name):
    return line(typeid, "norvex.parameter:group-1.0.0", name=name)


def text_range(typeid, *values):
    return line(typeid, "norvex.range:range.string.set.static-1.0.0", allowedValues=list(values))


def run(command, cwd, **variables):
    return subprocess.run(command, cwd=cwd, env=os.environ | variables, capture_output=True, text=True, check=False)


def git(cwd, *arguments):
    done = run(["git", "-c", "user.name=A", "-c", "user.email=a@b", *arguments], cwd)
    assert done.returncode == 0, done.stderr
    return done.stdout.strip()


class Repository:
    """A clone with the branches "safe", "breaking" and "faulty", while "main" went on."""

    branches = {"safe": group("g", "Group") + text_range("r", "x", "y", "z"),
                "breaking": group("g", "G") + text_range("r", "x"),
                "faulty": group("g", "G") + text_range("r", "x", "y") + "]\n"}

    def __init__(self, folder):
        self.folder = folder
        origin = folder.with_suffix(".origin")
        (origin / "catalogue").mkdir(parents=True)
        git(origin, "init", "-q", "-b", "main")
        self.commit(origin, group("g", "G") + text_range("r", "x", "y"))
        for branch, lines in self.branches.items():
            git(origin, "checkout", "-q", "-b", branch, "main")
            self.commit(origin, lines)
        git(origin, "checkout", "-q", "main")
        self.commit(origin, group("g", "G") + text_range("r", "x", "y") + group("later", "L"))
        git(folder.parent, "clone", "-q", origin, folder)

    @staticmethod
    def commit(folder, lines):
        (folder / "catalogue/all.ndjson").write_text(lines, encoding="utf-8")
        git(folder, "add", "catalogue")
        git(folder, "commit", "-q", "-m", "As it is")

    def check_out(self, branch):
        git(self.folder, "checkout", "-q", branch)
        return git(self.folder, "merge-base", "origin/main", "HEAD")

    def run(self, scripts, **variables):
        """Runs scripts in turn, as hosts do: up to the first one that fails. Returns its number, from 1; else 0."""
        self.outputs = []
        for number, script in enumerate(scripts, 1):
            done = run(["sh", "-e", "-c", script], self.folder, **variables)
            self.outputs.append(done.stdout + done.stderr)
            if done.returncode != 0:
                return number
        return 0


class Recipes(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.repository = Repository(pathlib.Path("clone").resolve())

    def expect(self, scripts, places, variables_of):
        """Runs scripts in each branch; places are the numbers of those that are to fail."""
        for branch, place in zip(Repository.branches, places):
            base = self.repository.check_out(branch)
            with self.subTest(branch=branch):
                self.assertEqual(self.repository.run(scripts, **variables_of(base)), place, self.repository.outputs)

    def test_github(self):
        steps = GITHUB["jobs"]["catalogue"]["steps"]
        self.assertEqual(steps[0]["with"]["fetch-depth"], 0)
        scripts = [step["run"] for step in steps if "run" in step]
        variables = {"GITHUB_BASE_REF": "main", "GITHUB_WORKSPACE": str(self.repository.folder)}
        self.expect(scripts[:3], (0, 3, 2), lambda base: variables)
        self.repository.check_out("breaking")
        self.repository.run(scripts[:3], **variables)
        self.assertTrue(self.repository.outputs[2].startswith("::error file=catalogue/all.ndjson,line=2,"))
        # The log is kept, whatever it says.
        self.assertEqual(self.repository.run(scripts[3:], **variables), 0)
        log = json.loads((self.repository.folder / steps[-1]["with"]["sarif_file"]).read_text(encoding="utf-8"))
        self.assertEqual([result["ruleId"] for result in log["runs"][0]["results"]], ["allowed-value-removed"])

    def test_gitlab(self):
        job = GITLAB["catalogue"]
        self.assertEqual(job["variables"]["GIT_DEPTH"], "0")
        variables_of = lambda base: {"CI_MERGE_REQUEST_DIFF_BASE_SHA": base}
        self.expect(job["script"], (0, 2, 1), variables_of)
        self.assertEqual(self.repository.run(job["after_script"], **variables_of(self.repository.check_out("breaking"))), 0)
        kept = json.loads((self.repository.folder / job["artifacts"]["paths"][0]).read_text(encoding="utf-8"))
        self.assertEqual(kept["verdicts"][0]["code"], "allowed-value-removed")

    def test_azure(self):
        self.assertEqual(AZURE["steps"][0], {"checkout": "self", "fetchDepth": 0})
        scripts = [step["script"] for step in AZURE["steps"][1:]]
        self.expect(scripts, (0, 2, 1), lambda base: {"SYSTEM_PULLREQUEST_TARGETBRANCHNAME": "main"})

    def test_a_step_that_cannot_tell_fails(self):
        scripts = [step["run"] for step in GITHUB["jobs"]["catalogue"]["steps"] if "run" in step]
        self.repository.check_out("safe")
        self.assertEqual(self.repository.run(scripts[3:], GITHUB_BASE_REF="nowhere"), 1)


class ProblemMatcher(unittest.TestCase):
    def problems_in(self, output):
        [pattern] = json.loads((CI / "problem-matcher.json").read_text(encoding="utf-8"))["problemMatcher"][0]["pattern"]
        found = filter(None, (re.match(pattern["regexp"], each) for each in output.splitlines()))
        return [{name: match[place] for name, place in pattern.items() if name != "regexp"} for match in found]

    def test_finds_faults_and_warnings(self):
        folder = pathlib.Path("matched")
        folder.mkdir()
        odd = json.loads(group("g", "G"))
        odd["constants"].append({"id": "colour", "value": "red"})
        (folder / "f.ndjson").write_text(json.dumps(odd) + "\n]\n", encoding="utf-8")
        fault, warning = sorted(self.problems_in(run(["ostra-params", "check", "f.ndjson"], folder).stdout),
                                key=lambda problem: problem["severity"] or "")
        self.assertEqual(fault, {"file": "f.ndjson", "line": "2", "column": "1", "severity": None, "code": None,
                                 "message": "JSON parsing error at offset 0: Invalid value."})
        self.assertEqual((warning["severity"], warning["code"], warning["line"]), ("warning", "constant-unknown", "1"))

    def test_finds_verdicts_that_are_not_safe(self):
        folder = pathlib.Path("judged")
        folder.mkdir()
        regex = lambda expression: line("e", "norvex.range:range.string.regex-1.0.0", regex=expression)
        (folder / "old.ndjson").write_text(group("g", "G") + text_range("r", "x", "y") + regex("a"), encoding="utf-8")
        (folder / "new.ndjson").write_text(group("g", "H") + text_range("r", "x") + regex("b"), encoding="utf-8")
        output = run(["ostra-params", "diff", "--breaking", "--all", "old.ndjson", "new.ndjson"], folder).stdout
        self.assertIn(" safe: ", output)
        self.assertEqual([(each["severity"], each["code"], each["line"]) for each in self.problems_in(output)],
                         [(None, "allowed-value-removed", "2"), ("warning", "regex-changed", "3")])


@unittest.skipUnless(shutil.which("pre-commit"), "pre-commit is not there")
class PreCommit(unittest.TestCase):
    def test_takes_the_hooks(self):
        done = run(["pre-commit", "validate-manifest", SOURCES / ".pre-commit-hooks.yaml"], ".")
        self.assertEqual(done.returncode, 0, done.stdout)

    def test_runs_them(self):
        hooks = pathlib.Path("hooks").resolve()
        hooks.mkdir()
        shutil.copy(SOURCES / ".pre-commit-hooks.yaml", hooks)
        git(hooks, "init", "-q")
        git(hooks, "add", ".pre-commit-hooks.yaml")
        git(hooks, "commit", "-q", "-m", "Hooks")
        recipe = dict(PRE_COMMIT["repos"][0], repo=str(hooks), rev=git(hooks, "rev-parse", "HEAD"))
        repository = Repository(pathlib.Path("committed").resolve())
        (repository.folder / ".pre-commit-config.yaml").write_text(json.dumps({"repos": [recipe]}), encoding="utf-8")
        git(repository.folder, "add", ".pre-commit-config.yaml")

        def outcomes():
            git(repository.folder, "add", "catalogue")
            output = run(["pre-commit", "run", "--color", "never"], repository.folder).stdout
            return re.findall(r"\.(Passed|Failed|\(no files to check\)Skipped)$", output, re.M), output

        file = repository.folder / "catalogue/all.ndjson"
        file.write_text(Repository.branches["breaking"], encoding="utf-8")
        results, output = outcomes()
        self.assertEqual(results, ["Failed", "Passed", "Failed"], output)  # laid out, sound, but breaking
        wider = Repository.branches["safe"] + group("later", "L")
        file.write_text(wider.replace(", ", ",").replace(": ", ":"), encoding="utf-8")
        results, output = outcomes()
        self.assertEqual(results, ["Passed", "Passed", "Passed"], output)


unittest.main(verbosity=2)
