"""What became of each mutant, kept in a file, so that a run can be resumed."""

import json
import os


class Log:
    def __init__(self, path, keep, forget=None):
        self.known, self.forgotten = {}, set()
        if keep and os.path.exists(path):
            with open(path, encoding="utf-8") as file:
                for line in file:
                    entry = json.loads(line)
                    self.known[tuple(entry["name"])] = entry["verdict"]
        for name in [name for name, verdict in self.known.items() if verdict == forget]:
            self.forgotten.add(name)
            del self.known[name]
        os.makedirs(os.path.dirname(path), exist_ok=True)
        self.file = open(path, "a" if keep else "w", encoding="utf-8")

    def verdict(self, name):
        return self.known.get(name)

    def verdicts(self):
        return self.known.items()

    def count(self, verdict):
        return sum(1 for each in self.known.values() if each == verdict)

    def add(self, name, verdict, by=""):
        self.known[name] = verdict
        self.file.write(json.dumps({"name": name, "verdict": verdict, "by": by}) + "\n")
        self.file.flush()
