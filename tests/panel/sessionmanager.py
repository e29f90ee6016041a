#!/usr/bin/env python3
"""An X session manager for one client, made of libSM as real ones are. It prints the address for
SESSION_MANAGER, then reads commands from standard input and prints what the client does.

checkpoint  asks to save, as sessions do now and then
shutdown    asks to save because the session ends
cancel      the session goes on after all
die         ends the client
quit        ends itself, without a word to the client

registered            the client has joined
saved 1               the client has saved; 0 if it has failed
restart N WORD...     how it wants to be started again, and the hint when (3 is never)
closed                it has left the session
"""

import ctypes
import os
import select
import sys

ICE = ctypes.CDLL("libICE.so.6")
SM = ctypes.CDLL("libSM.so.6")
POINTER = ctypes.c_void_p
RESTART_COMMAND, RESTART_HINT = b"RestartCommand", b"RestartStyleHint"
SAVE_LOCAL, SAVE_BOTH = 1, 2
INTERACT_NONE, INTERACT_ANY = 0, 2


class Value(ctypes.Structure):
    _fields_ = [("length", ctypes.c_int), ("value", POINTER)]

    def bytes(self):
        return ctypes.string_at(self.value, self.length)


class Property(ctypes.Structure):
    _fields_ = [("name", ctypes.c_char_p), ("type", ctypes.c_char_p), ("count", ctypes.c_int),
                ("values", ctypes.POINTER(Value))]


class Reaction(ctypes.Structure):
    _fields_ = [("function", POINTER), ("data", POINTER)]


NAMES = ("register_client", "interact_request", "interact_done", "save_yourself_request", "phase2_request",
         "save_yourself_done", "close_connection", "set_properties", "delete_properties", "get_properties")


class Reactions(ctypes.Structure):
    _fields_ = [(name, Reaction) for name in NAMES]


for library, name, result, arguments in (
        (SM, "SmsGenerateClientID", POINTER, [POINTER]),
        (SM, "SmsRegisterClientReply", ctypes.c_int, [POINTER, POINTER]),
        (SM, "SmsSaveYourself", None, [POINTER, ctypes.c_int, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
        (SM, "SmsSaveYourselfPhase2", None, [POINTER]),
        (SM, "SmsInteract", None, [POINTER]),
        (SM, "SmsSaveComplete", None, [POINTER]),
        (SM, "SmsShutdownCancelled", None, [POINTER]),
        (SM, "SmsDie", None, [POINTER]),
        (SM, "SmsCleanUp", None, [POINTER]),
        (ICE, "IceComposeNetworkIdList", POINTER, [ctypes.c_int, POINTER]),
        (ICE, "IceGetListenConnectionNumber", ctypes.c_int, [POINTER]),
        (ICE, "IceSetHostBasedAuthProc", None, [POINTER, POINTER]),
        (ICE, "IceAcceptConnection", POINTER, [POINTER, POINTER]),
        (ICE, "IceConnectionNumber", ctypes.c_int, [POINTER]),
        (ICE, "IceProcessMessages", ctypes.c_int, [POINTER, POINTER, POINTER]),
        (ICE, "IceSetShutdownNegotiation", None, [POINTER, ctypes.c_int]),
        (ICE, "IceCloseConnection", ctypes.c_int, [POINTER]),
        (ICE, "IceSetIOErrorHandler", POINTER, [POINTER]),
        (ICE, "IceFreeListenObjs", None, [ctypes.c_int, POINTER])):
    getattr(library, name).restype = result
    getattr(library, name).argtypes = arguments

free = ctypes.CDLL(None).free
free.argtypes = [POINTER]

# C calls these later, so they must not be collected.
KEPT = []


def for_c(function, result, *arguments):
    KEPT.append(ctypes.CFUNCTYPE(result, *arguments)(function))
    return ctypes.cast(KEPT[-1], POINTER)


class Manager:
    def __init__(self):
        self.connections = {}
        self.client = None
        self.properties = {}
        anybody = for_c(lambda host: 1, ctypes.c_int, ctypes.c_char_p)
        # Without a handler, the end of a client would end this process.
        ICE.IceSetIOErrorHandler(for_c(lambda connection: None, None, POINTER))
        error = ctypes.create_string_buffer(256)
        new_client = for_c(self.new_client, ctypes.c_int, POINTER, POINTER, POINTER, ctypes.POINTER(Reactions),
                           POINTER)
        if not SM.SmsInitialize(b"test", b"1", new_client, None, anybody, 256, error):
            sys.exit(error.value.decode())
        self.count = ctypes.c_int()
        self.listeners = POINTER()
        if not ICE.IceListenForConnections(ctypes.byref(self.count), ctypes.byref(self.listeners), 256, error):
            sys.exit(error.value.decode())
        array = ctypes.cast(self.listeners, ctypes.POINTER(POINTER))
        self.listening = {}
        for listener in array[:self.count.value]:
            ICE.IceSetHostBasedAuthProc(listener, anybody)
            self.listening[ICE.IceGetListenConnectionNumber(listener)] = listener
        addresses = ctypes.string_at(ICE.IceComposeNetworkIdList(self.count, self.listeners)).decode()
        print(next(address for address in addresses.split(",") if address.startswith("local/")), flush=True)

    def new_client(self, client, _data, mask, reactions, _reason):
        functions = {
            "register_client": (self.register, ctypes.c_int, [POINTER, POINTER, POINTER]),
            "interact_request": (lambda c, d, kind: SM.SmsInteract(c), None, [POINTER, POINTER, ctypes.c_int]),
            "interact_done": (lambda c, d, cancel: print("interacted", flush=True), None,
                              [POINTER, POINTER, ctypes.c_int]),
            "save_yourself_request": (lambda *request: None, None, [POINTER, POINTER] + 5 * [ctypes.c_int]),
            "phase2_request": (lambda c, d: SM.SmsSaveYourselfPhase2(c), None, [POINTER, POINTER]),
            "save_yourself_done": (self.saved, None, [POINTER, POINTER, ctypes.c_int]),
            "close_connection": (self.closed, None, [POINTER, POINTER, ctypes.c_int, POINTER]),
            "set_properties": (self.set_properties, None,
                               [POINTER, POINTER, ctypes.c_int, ctypes.POINTER(ctypes.POINTER(Property))]),
            "delete_properties": (lambda *names: None, None, [POINTER, POINTER, ctypes.c_int, POINTER]),
            "get_properties": (lambda *none: None, None, [POINTER, POINTER]),
        }
        for name, (function, result, arguments) in functions.items():
            getattr(reactions.contents, name).function = for_c(function, result, *arguments)
        ctypes.cast(mask, ctypes.POINTER(ctypes.c_ulong))[0] = (1 << len(NAMES)) - 1
        return 1

    def register(self, client, _data, previous):
        # An identifier of an earlier session would be accepted, but here is none.
        if previous:
            free(previous)
            return 0
        SM.SmsRegisterClientReply(client, SM.SmsGenerateClientID(client))
        SM.SmsSaveYourself(client, SAVE_LOCAL, 0, INTERACT_NONE, 0)
        self.client = client
        print("registered", flush=True)
        return 1

    def saved(self, _client, _data, success):
        hint = self.properties.get(RESTART_HINT, [b"\0"])[0][0]
        words = [word.decode() for word in self.properties.get(RESTART_COMMAND, [])]
        print("restart", hint, *words, flush=True)
        print("saved", success, flush=True)

    def set_properties(self, _client, _data, count, properties):
        for place in range(count):
            one = properties[place].contents
            self.properties[one.name] = [value.bytes() for value in one.values[:one.count]]

    def closed(self, client, _data, _count, _reasons):
        SM.SmsCleanUp(client)
        self.client = None
        print("closed", flush=True)

    def forget(self, number):
        connection = self.connections.pop(number)
        ICE.IceSetShutdownNegotiation(connection, 0)
        ICE.IceCloseConnection(connection)

    def run(self, command):
        if command == "checkpoint":
            SM.SmsSaveYourself(self.client, SAVE_BOTH, 0, INTERACT_NONE, 0)
        elif command == "shutdown":
            SM.SmsSaveYourself(self.client, SAVE_BOTH, 1, INTERACT_ANY, 0)
        elif command == "complete":
            SM.SmsSaveComplete(self.client)
        elif command == "cancel":
            SM.SmsShutdownCancelled(self.client)
        elif command == "die":
            SM.SmsDie(self.client)

    def serve(self):
        pending = b""
        while True:
            for number in select.select([0, *self.listening, *self.connections], [], [])[0]:
                if number == 0:
                    read = os.read(0, 4096)
                    *commands, pending = (pending + read).split(b"\n")
                    for command in commands:
                        self.run(command.decode())
                    if not read or b"quit" in commands:
                        return
                elif number in self.listening:
                    connection = ICE.IceAcceptConnection(self.listening[number], ctypes.byref(ctypes.c_int()))
                    if connection:
                        self.connections[ICE.IceConnectionNumber(connection)] = connection
                elif ICE.IceProcessMessages(self.connections[number], None, None) != 0:
                    self.forget(number)


manager = Manager()
try:
    manager.serve()
finally:
    ICE.IceFreeListenObjs(manager.count, manager.listeners)
