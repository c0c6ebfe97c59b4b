"""A mouse and a keyboard for a Wayland compositor, plugged in until the end. It speaks the bare protocol, as the usual
tools unplug theirs after each command."""

import array
import os
import socket
import struct
import tempfile
import time

DISPLAY, REGISTRY = 1, 2
LEFT_BUTTON = 0x110
RELEASED, PRESSED = 0, 1
KEYMAP_FORMAT = 1

#: By the kernel's numbers.
KEYS = {"Escape": 1, "a": 30, "s": 31, "d": 32, "f": 33}

KEYMAP = """xkb_keymap {
xkb_keycodes { minimum = 8; maximum = 255; %s };
xkb_types { include "basic" };
xkb_compat { include "basic" };
xkb_symbols { %s };
};
""" % (" ".join(f"<K{code:03}> = {code + 8};" for code in KEYS.values()),
       " ".join(f"key <K{code:03}> {{ [ {name} ] }};" for name, code in KEYS.items()))


def text(words):
    data = words.encode() + b"\0"
    return struct.pack("=I", len(data)) + data + b"\0" * (-len(data) % 4)


def numbers(*values):
    return struct.pack(f"={len(values)}I", *values)


class WaylandHands:
    def __init__(self, path, width, height):
        self._extent = width, height
        self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._socket.connect(path)
        self._last_id = REGISTRY
        self._received = b""
        self._globals = {}
        self._answered = set()
        self._send(DISPLAY, 1, numbers(REGISTRY))
        self._settle()
        seat = self._bind("wl_seat", 1)
        self._pointer = self._make(self._bind("zwlr_virtual_pointer_manager_v1", 1), seat)
        self._keyboard = self._make(self._bind("zwp_virtual_keyboard_manager_v1", 1), seat)
        self._give_keymap()
        self._settle()

    def move_to(self, point):
        self._send(self._pointer, 1, numbers(self._now(), *point, *self._extent))
        self._frame()

    def click(self, point):
        self.move_to(point)
        self._button(PRESSED)
        self._button(RELEASED)

    def drag(self, start, end, steps=10):
        self.move_to(start)
        self._button(PRESSED)
        for step in range(1, steps + 1):
            self.move_to(tuple(a + (b - a) * step // steps for a, b in zip(start, end)))
            time.sleep(0.02)
        self._button(RELEASED)

    def press(self, *names):
        for name in names:
            self.hold(name)
            self.let_go(name)

    def hold(self, name):
        self._key(name, PRESSED)

    def let_go(self, name):
        self._key(name, RELEASED)

    def end(self):
        self._socket.close()

    def _button(self, state):
        self._send(self._pointer, 2, numbers(self._now(), LEFT_BUTTON, state))
        self._frame()

    def _frame(self):
        self._send(self._pointer, 4, b"")
        self._settle()

    def _key(self, name, state):
        self._send(self._keyboard, 1, numbers(self._now(), KEYS[name], state))
        self._settle()

    def _give_keymap(self):
        data = KEYMAP.encode() + b"\0"
        with tempfile.TemporaryFile() as file:
            file.write(data)
            file.flush()
            self._send(self._keyboard, 0, numbers(KEYMAP_FORMAT, len(data)), file.fileno())

    @staticmethod
    def _now():
        return int(time.monotonic() * 1000) & 0xFFFFFFFF

    def _new_id(self):
        self._last_id += 1
        return self._last_id

    def _bind(self, interface, version):
        new = self._new_id()
        self._send(REGISTRY, 0, numbers(self._globals[interface]) + text(interface) + numbers(version, new))
        return new

    def _make(self, manager, seat):
        new = self._new_id()
        self._send(manager, 0, numbers(seat, new))
        return new

    def _send(self, target, opcode, arguments, file=None):
        message = struct.pack("=II", target, (len(arguments) + 8) << 16 | opcode) + arguments
        files = [] if file is None else [(socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", [file]))]
        self._socket.sendmsg([message], files)

    def _settle(self):
        """Until the compositor has done all that was asked."""
        callback = self._new_id()
        self._send(DISPLAY, 0, numbers(callback))
        while callback not in self._answered:
            self._receive()

    def _receive(self):
        data, files, _, _ = socket.recv_fds(self._socket, 65536, 8)
        for file in files:
            os.close(file)
        if not data:
            raise AssertionError("the compositor has gone")
        self._received += data
        while len(self._received) >= 8:
            target, size_and_opcode = struct.unpack_from("=II", self._received)
            size = size_and_opcode >> 16
            if len(self._received) < size:
                return
            self._handle(target, size_and_opcode & 0xFFFF, self._received[8:size])
            self._received = self._received[size:]

    def _handle(self, target, opcode, arguments):
        if target == REGISTRY and opcode == 0:
            number, length = struct.unpack_from("=II", arguments)
            self._globals.setdefault(arguments[8:8 + length - 1].decode(), number)
        elif target == DISPLAY and opcode == 0:
            raise AssertionError(f"the compositor refuses: {arguments!r}")
        elif target > REGISTRY and opcode == 0:
            self._answered.add(target)
