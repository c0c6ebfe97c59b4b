"""What a test of the real program on a virtual desktop needs."""

from scaffold.case import DesktopTest
from scaffold.desktop import Desktop
from scaffold.waiting import until, until_steady

__all__ = ["Desktop", "DesktopTest", "until", "until_steady"]
