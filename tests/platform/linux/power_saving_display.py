#!/usr/bin/python3
"""An X display that can save power: another display, seen through a socket that adds the DPMS extension.

usage: power_saving_display.py OUTER INNER [incapable]

OUTER and INNER are the numbers of the display that does the work and of this one. Writes a line when it is ready;
each line that it reads is the power level from then on: 0 on, 1 standby, 2 suspended, 3 off. Writes a line for each
question about the level that comes in.
"""

import os
import signal
import socket
import struct
import sys
import threading

QUERY_EXTENSION = 98
GET_INPUT_FOCUS = struct.pack("<BxH", 43, 1)
DPMS_OPCODE = 200
GET_VERSION, CAPABLE, INFO = 0, 1, 7
REPLY, GENERIC_EVENT = 1, 35

is_capable = "incapable" not in sys.argv[3:]
level = 0


def receive(stream, count):
    data = b""
    while len(data) < count:
        part = stream.recv(count - len(data))
        if not part:
            raise EOFError
        data += part
    return data


def padded(length):
    return (length + 3) & ~3


def extension_reply(sequence):
    return struct.pack("<BxHIBBBB20x", REPLY, sequence, 0, 1, DPMS_OPCODE, 0, 0)


def power_reply(kind, sequence):
    head = struct.pack("<BxHI", REPLY, sequence, 0)
    if kind == INFO:
        print("asked", flush=True)
    body = {
        GET_VERSION: lambda: struct.pack("<HH20x", 1, 1),
        CAPABLE: lambda: struct.pack("<B23x", is_capable),
        INFO: lambda: struct.pack("<HB21x", level, 1),
    }
    return head + body[kind]()


class Client:
    """One connection. Every request of the extension goes on as a question whose answer is then replaced, so that
    the numbers of requests and answers stay as the outer display counts them."""

    def __init__(self, inner, outer_path):
        self.inner = inner
        self.outer = socket.socket(socket.AF_UNIX)
        self.outer.connect(outer_path)
        self.replacements = {}
        self.sequence = 0

    def start(self):
        for work in (self.pass_requests, self.pass_answers):
            threading.Thread(target=self.run, args=(work,), daemon=True).start()

    def run(self, work):
        try:
            work()
        except (EOFError, OSError):
            pass
        for stream in (self.inner, self.outer):
            try:
                stream.shutdown(socket.SHUT_RDWR)
            except OSError:
                pass

    def pass_requests(self):
        head = receive(self.inner, 12)
        name_length, data_length = struct.unpack_from("<HH", head, 6)
        self.outer.sendall(head + receive(self.inner, padded(name_length) + padded(data_length)))
        while True:
            head = receive(self.inner, 4)
            opcode, kind, length = struct.unpack("<BBH", head)
            request = head + receive(self.inner, 4 * length - 4)
            self.sequence = (self.sequence + 1) & 0xFFFF
            self.outer.sendall(self.translated(opcode, kind, request))

    def translated(self, opcode, kind, request):
        sequence = self.sequence
        if opcode == QUERY_EXTENSION and request[8:12] == b"DPMS":
            self.replacements[sequence] = lambda: extension_reply(sequence)
        if opcode != DPMS_OPCODE:
            return request
        self.replacements[sequence] = lambda: power_reply(kind, sequence)
        return GET_INPUT_FOCUS

    def pass_answers(self):
        head = receive(self.outer, 8)
        self.inner.sendall(head + receive(self.outer, 4 * struct.unpack_from("<H", head, 6)[0]))
        while True:
            answer = receive(self.outer, 32)
            kind, sequence, length = struct.unpack_from("<BxHI", answer)
            if kind in (REPLY, GENERIC_EVENT):
                answer += receive(self.outer, 4 * length)
            if kind == REPLY and sequence in self.replacements:
                answer = self.replacements.pop(sequence)()
            self.inner.sendall(answer)


def accept_clients(listener, outer_path):
    while True:
        Client(listener.accept()[0], outer_path).start()


def path_of(number):
    return "/tmp/.X11-unix/X" + number


listener = socket.socket(socket.AF_UNIX)
listener.bind(path_of(sys.argv[2]))
listener.listen()
signal.signal(signal.SIGTERM, lambda *_: sys.exit())
threading.Thread(target=accept_clients, args=(listener, path_of(sys.argv[1])), daemon=True).start()
print("ready", flush=True)
try:
    for line in sys.stdin:
        level = int(line)
finally:
    os.unlink(path_of(sys.argv[2]))
