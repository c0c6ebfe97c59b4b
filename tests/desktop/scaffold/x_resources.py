"""What the X server keeps for a program, as its resource extension tells."""

import ctypes
import struct
from collections import Counter

HEADER = 32
LOCAL_PROCESS = 2


class Cookie(ctypes.Structure):
    _fields_ = [("sequence", ctypes.c_uint)]


class Question(ctypes.Structure):
    _fields_ = [("client", ctypes.c_uint32), ("mask", ctypes.c_uint32)]


class XResources:
    """A connection of its own to one display."""

    def __init__(self, display):
        self._xcb = ctypes.CDLL("libxcb.so.1")
        self._resources = ctypes.CDLL("libxcb-res.so.0")
        self._free = ctypes.CDLL(None).free
        self._free.argtypes = [ctypes.c_void_p]
        self._xcb.xcb_connect.restype = ctypes.c_void_p
        self._connection = ctypes.c_void_p(self._xcb.xcb_connect(display.encode(), None))
        if self._xcb.xcb_connection_has_error(self._connection):
            raise AssertionError(f"no X server at {display}")
        self._names = {}
        self._ask(self._resources, "xcb_res_query_version", ctypes.c_uint8(1), ctypes.c_uint8(2))

    def close(self):
        self._xcb.xcb_disconnect(self._connection)

    def _ask(self, library, name, *arguments):
        """The reply as bytes, or nothing: a client may go while it is asked about."""
        question, reply = getattr(library, name), getattr(library, name + "_reply")
        question.restype = Cookie
        reply.restype = ctypes.c_void_p
        answer = reply(self._connection, question(self._connection, *arguments), None)
        if not answer:
            return b""
        (words,) = struct.unpack("=I", ctypes.string_at(answer + 4, 4))
        text = ctypes.string_at(answer, HEADER + 4 * words)
        self._free(answer)
        return text

    def clients_of(self, pid):
        """The connections of that process, by their number."""
        everybody = Question(0, LOCAL_PROCESS)
        reply = self._ask(self._resources, "xcb_res_query_client_ids", ctypes.c_uint32(1), ctypes.byref(everybody))
        found, place = [], HEADER
        while place + 12 <= len(reply):
            client, _, length = struct.unpack_from("=III", reply, place)
            if struct.unpack_from("=I", reply, place + 12) == (pid,):
                found.append(client)
            place += 12 + length
        return found

    def counts_of(self, pid):
        """How many of each kind its connections have together, and how many those are."""
        clients = self.clients_of(pid)
        counts = Counter({"X clients": len(clients)})
        for client in clients:
            reply = self._ask(self._resources, "xcb_res_query_client_resources", ctypes.c_uint32(client))
            for kind, count in struct.iter_unpack("=II", reply[HEADER:]):
                counts[f"X {self._name(kind)}"] += count
        return counts

    def _name(self, atom):
        if atom not in self._names:
            reply = self._ask(self._xcb, "xcb_get_atom_name", ctypes.c_uint32(atom))
            (length,) = struct.unpack_from("=H", reply, 8)
            self._names[atom] = reply[HEADER:HEADER + length].decode()
        return self._names[atom]
