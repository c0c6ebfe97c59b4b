"""What can be seen on the display."""

import subprocess


class Picture:
    """Pixels, three bytes each."""

    def __init__(self, width, height, pixels):
        if len(pixels) != width * height * 3:
            raise AssertionError(f"a picture of {width} x {height} has {len(pixels)} bytes")
        self.width = width
        self.height = height
        self.pixels = pixels

    def __eq__(self, other):
        return self.pixels == other.pixels

    def pixel(self, x, y):
        start = (y * self.width + x) * 3
        return tuple(self.pixels[start:start + 3])

    def brightness(self):
        return sum(self.pixels) / len(self.pixels)

    def share_of(self, color):
        """Which part of the pixels has exactly that color."""
        found = sum(self.pixels[start:start + 3] == color for start in range(0, len(self.pixels), 3))
        return found / (self.width * self.height)


def shoot(environment, frame):
    x, y, width, height = frame
    command = ["import", "-silent", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", "-depth", "8",
               "rgb:-"]
    shot = subprocess.run(command, env=environment, stdout=subprocess.PIPE, check=True, timeout=60)
    return Picture(width, height, shot.stdout)
