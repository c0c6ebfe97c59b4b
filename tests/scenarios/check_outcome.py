"""Runs one scenario and compares what it leaves, to the letter, with the comments at its top.

    # status: N        the exit status
    # output: TEXT     the lines of the standard output, in order
    # error: L: TEXT   the lines of the standard error that name the scenario and its line, in order
    # says: TEXT       a line of the standard error that names nothing, in order with the others
"""

import subprocess
import sys


def wanted(path):
    status, output, errors = None, [], []
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            label, _, text = line.rstrip("\n").removeprefix("# ").partition(": ")
            if not line.startswith("# "):
                break
            if label == "status":
                status = int(text)
            elif label == "output":
                output.append(text)
            elif label == "error":
                errors.append(f"{path}:{text}")
            elif label == "says":
                errors.append(text)
    return status, output, errors


def main(simulator, path):
    run = subprocess.run([simulator, path], capture_output=True, encoding="utf-8", timeout=60)
    got = (run.returncode, run.stdout.splitlines(), run.stderr.splitlines())
    if got == wanted(path):
        return 0
    for name, left, right in zip(("status", "output", "errors"), wanted(path), got):
        print(f"{name}\n  wanted {left}\n  got    {right}")
    return 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
