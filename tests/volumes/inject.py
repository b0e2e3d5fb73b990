#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
# SPDX-License-Identifier: MIT

"""Lets every system call of every operation fail once, and be the last one once.

inject.py <operation program>, with ZEV_VOLUMES as with-volumes gives it. After each run it looks for what was
there before: lost is what is nowhere, or only in part where it stands; hidden is what only an unfinished item
still has; left over is an unfinished item that is still there after the next operation, two minutes later.
"""

import collections
import os
import random
import re
import shutil
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

CALLS = """openat mkdir mkdirat rmdir rename renameat renameat2 linkat unlink unlinkat symlinkat readlinkat
newfstatat fstat statx statfs fstatfs copy_file_range read pread64 write pwrite64 ftruncate lseek fchmod fchmodat
fchown fchownat utimensat fsetxattr fgetxattr flistxattr fremovexattr fsync syncfs getdents64 close ioctl faccessat
faccessat2""".split()
FAULTS = ["error=EIO", "error=EPERM", "error=ENOSPC", "error=EINTR", "signal=KILL"]
NEW = {"file": {"": b"new"}, "folder": {"/a": b"new a", "/b": b"new b", "/inner/c": b"new c"}}
OLD = {"file": {"": b"old"}, "folder": {"/a": b"old a", "/x/y": b"old y"}}
OPERATIONS = ["copy", "move", "copy-beside", "move-beside", "copy-replacing", "move-replacing", "copy-atomic", "write"]


def make(path, files):
    for name, contents in files.items():
        os.makedirs(os.path.dirname(path + name), exist_ok=True)
        with open(path + name, "wb") as file:
            file.write(contents)


def read(path):
    """The files at a path, by their names from it on; empty for none."""
    files = {}
    if os.path.isfile(path):
        with open(path, "rb") as file:
            return {"": file.read()}
    for folder, _, names in os.walk(path):
        for name in names:
            with open(os.path.join(folder, name), "rb") as file:
                files[os.path.join(folder, name)[len(path):]] = file.read()
    return files


def is_hidden(name):
    return name.startswith(".zev-")


class Ground:
    """One operation between two folders, from scratch."""

    def __init__(self, program, operation, kind, source_volume, volume, number):
        self.program, self.operation, self.kind = program, operation, kind
        self.folders = [f"{source_volume}/from{number}", f"{volume}/to{number}"]
        self.source, self.destination = (folder + "/item" for folder in self.folders)
        for folder in self.folders:
            shutil.rmtree(folder, ignore_errors=True)
            os.makedirs(folder)
        self.new, self.old = NEW[kind], OLD[kind]
        self.has_old = "-" in operation or operation == "write"
        make(self.source, self.new)
        if self.has_old:
            make(self.destination, self.old)

    def run(self, *strace):
        return subprocess.run([*strace, self.program, self.operation, self.source, self.destination],
                              capture_output=True, check=False).returncode

    def close(self):
        for folder in self.folders:
            shutil.rmtree(folder, ignore_errors=True)

    def items(self, hidden):
        return [read(f"{folder}/{name}") for folder in self.folders for name in os.listdir(folder)
                if is_hidden(name) == hidden]

    def replaces(self):
        return self.operation.endswith(("-replacing", "-atomic"))

    def problems(self, result):
        """Of the state after a run, told apart from its result where it was not killed."""
        visible, hidden = self.items(False), self.items(True)
        source, destination = read(self.source), read(self.destination)
        found = []
        is_new_there = destination == self.new
        wanted = [self.new]
        if self.has_old and not (self.replaces() and is_new_there):
            wanted.append(self.old)
        for item in wanted:
            if item not in visible:
                everywhere = {bytes_ for each in visible + hidden for bytes_ in each.values()}
                found.append("hidden" if set(item.values()) <= everywhere else "lost")
        # Killed after the two have changed places, before what was replaced goes: both are in sight.
        swapped = [self.old] if self.replaces() and is_new_there and result != 0 else []
        if source not in ({}, self.new, *swapped) or destination not in ({}, self.new, self.old):
            found.append("lost")
        if result == 1 and (source != self.new or destination != (self.old if self.has_old else {})):
            found.append("lost")  # told as failed, and not as before
        if result == 0 and self.operation.startswith("move") and source:
            found.append("lost")  # told as done, and not
        if result == 0 and (not self.has_old or self.replaces()) and not is_new_there:
            found.append("lost")
        return found

    def leftovers(self):
        """After the next operation, once their time has come."""
        for folder in self.folders:
            hidden = list(filter(is_hidden, os.listdir(folder)))
            if not hidden:
                continue
            for name in hidden:
                older = f"{int(name[5:13], 16) - 120:08x}"
                os.rename(f"{folder}/{name}", f"{folder}/.zev-{older}{name[13:]}")
            with open(folder + "/probe", "wb"):
                pass
            subprocess.run([self.program, "copy", folder + "/probe", folder + "/probe copy"], check=True)
            os.unlink(folder + "/probe")
            os.unlink(folder + "/probe copy")
        return sum(is_hidden(name) for folder in self.folders for name in os.listdir(folder))


def points(program, operation, kind, source_volume, volume, number):
    """Every call that the operation makes, as (name, how many of that name came before and it)."""
    ground = Ground(program, operation, kind, source_volume, volume, number)
    trace = f"/tmp/zev-trace-{os.getpid()}-{number}"
    ground.run("strace", "-f", "-o", trace)
    ground.close()
    counts, found, has_begun = collections.Counter(), [], False
    with open(trace, encoding="utf-8", errors="replace") as lines:
        for line in lines:
            has_begun = has_begun or "/zev-begin" in line
            call = re.match(r"\d+\s+(\w+)\(", line)
            if call and call[1] in CALLS:
                counts[call[1]] += 1
                if has_begun:
                    found.append((call[1], counts[call[1]]))
    os.unlink(trace)
    return found


def attempt(program, operation, kind, source_volume, volume, number, point, fault):
    ground = Ground(program, operation, kind, source_volume, volume, number)
    call, nth = point
    result = ground.run("strace", "-f", "-o", "/dev/null", "-e", f"trace={call}",
                        "-e", f"inject={call}:{fault}:when={nth}")
    found = ground.problems(result)
    count = ground.leftovers()
    if "signal" in fault and not found:
        found = ground.problems(None)
    if found:
        print(f"  {operation} {kind} {source_volume} to {volume}: {fault} at {call} {nth}: {found}", flush=True)
    ground.close()
    return found, count


def survey(program, source_volume, volume):
    totals = collections.Counter()
    chosen = random.Random(1)
    share = int(os.environ.get("ZEV_INJECT_SHARE", "1"))
    with ThreadPoolExecutor(int(os.environ.get("ZEV_JOBS", "2"))) as workers:
        runs = []
        for operation in OPERATIONS:
            for kind in NEW:
                for point in points(program, operation, kind, source_volume, volume, 0):
                    for fault in FAULTS:
                        if chosen.randrange(share):
                            continue
                        runs.append(workers.submit(attempt, program, operation, kind, source_volume, volume,
                                                   len(runs) + 1, point, fault))
        for run in runs:
            found, count = run.result()
            totals["tried"] += 1
            totals["left over"] += count
            totals.update(set(found))
    return totals


def main():
    volumes = dict(volume.split("=") for volume in os.environ["ZEV_VOLUMES"].split())
    wanted = os.environ.get("ZEV_INJECT", "").split() or list(volumes)
    failed = False
    for name in wanted:
        for source in dict.fromkeys([name, "tmpfs" if name != "tmpfs" else "ext4"]):
            totals = survey(sys.argv[1], volumes[source], volumes[name])
            print(f"{source} to {name}: {totals['tried']} points tried, {totals['lost']} lost, "
                  f"{totals['hidden']} hidden, {totals['left over']} left over", flush=True)
            failed = failed or totals["lost"] or totals["hidden"] or (name == "ext4" and totals["left over"])
    sys.exit(1 if failed else 0)


main()
