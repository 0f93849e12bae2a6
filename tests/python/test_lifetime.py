"""Who holds what, and that nothing is left behind."""

import gc
import resource
import sys
import threading
import weakref

import script_objects as script
import vorlan

ROUNDS = 10_000


class Collected(script.ListMessage):
    pass


def test_identity_survives_the_way_in_and_out():
    message, sector = vorlan.MessageObject(), script.Sector(script.Configuration())
    for thing in (message, sector):
        first, second = vorlan.ByRef(thing), vorlan.ByRef([thing])
        vorlan.SB_GeneralFunctions().AddPadding(vorlan.ByRef(""))
        for held in (first, second):
            try:
                vorlan.SB_GeneralFunctions().AddPadding(held)
            except vorlan.AutomationError:
                pass
        assert first.value is thing and second.value[0] is thing


def test_objects_are_held_as_long_as_the_library_holds_them():
    received, message = vorlan.SB_Ses_MsgSessionClose(), Collected((1, 0, 0))
    alive = weakref.ref(message)
    received.PRobj_MessageObject = message
    del message
    assert alive() is not None
    received.PRobj_MessageObject = Collected((1, 0, 0))
    assert alive() is None
    face = weakref.ref(received)
    del received
    assert face() is None


def test_a_method_keeps_its_object():
    initialize = vorlan.SB_Ses_MsgSessionClose().Initialize
    initialize(None)
    assert initialize.__self__.CreateMessage(vorlan.MessageObject())
    octet = vorlan.MessageObject().Octet
    octet[1] = 5
    assert octet[1] == 5


def one_round(shared):
    script.assignment(shared, message := script.ListMessage())
    received = vorlan.CreateObject("Vorlan.SB_Ses_MsgSessionClose")
    received.PRobj_MessageObject = message
    for wrong in (lambda: received.PRstr_Nothing, lambda: setattr(received, "PRstr_CloseReason", "1")):
        try:
            wrong()
        except vorlan.AutomationError:
            pass
    try:
        script.assignment(script.Raising(ValueError), vorlan.MessageObject())
    except vorlan.AutomationError:
        pass
    held = vorlan.ByRef([received, shared, "text"])
    vorlan.SB_GeneralFunctions().AddPadding(Bits=held.value[2])
    return repr(received)


def test_many_rounds_leave_nothing_behind():
    shared = script.Configuration()
    for _ in range(ROUNDS // 10):
        one_round(shared)
    gc.collect()
    references, objects = sys.getrefcount(shared), len(gc.get_objects())
    memory = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
    for _ in range(ROUNDS):
        one_round(shared)
    gc.collect()
    assert sys.getrefcount(shared) == references
    assert abs(len(gc.get_objects()) - objects) < 100
    assert resource.getrusage(resource.RUSAGE_SELF).ru_maxrss - memory < 2000  # KiB; 200 octets left behind by each round show


def test_threads_with_objects_of_their_own():
    results = []

    def work():
        message = script.ListMessage()
        for _ in range(200):
            script.assignment(script.Configuration(), message)
        results.append(message.sent())

    threads = [threading.Thread(target=work) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert len(results) == 4 and len(set(results)) == 1
