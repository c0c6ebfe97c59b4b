"""Waiting for what will come: by looking for it, with a deadline."""

import time

LOOK_EVERY = 0.02
PATIENCE = 15.0


def until(condition, what, seconds=PATIENCE):
    """The first answer of the condition that is true."""
    deadline = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise AssertionError(f"not within {seconds:g} s: {what}")
        time.sleep(LOOK_EVERY)
