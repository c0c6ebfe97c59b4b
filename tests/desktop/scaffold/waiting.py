"""Waiting for what will come: by looking for it, with a deadline."""

import time

LOOK_EVERY = 0.02
PATIENCE = 15.0
#: Several frames of a busy machine: what is told in the midst of one may lie elsewhere once it is drawn.
STEADY_SECONDS = 0.1


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


def until_steady(look, what, seconds=PATIENCE):
    """The first answer that is true and still the same a little later."""
    def steady():
        answer = look()
        if not answer:
            return None
        time.sleep(STEADY_SECONDS)
        return answer if look() == answer else None
    return until(steady, what, seconds)
