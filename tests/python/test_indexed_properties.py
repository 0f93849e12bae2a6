"""Indexed properties: with subscripts, and as their values where every index may be left out."""

import inspect
import math
import operator
import pydoc

import pytest
import vorlan

functions = vorlan.SB_GeneralFunctions()
octet = vorlan.MessageObject().Octet


@pytest.fixture
def parameters():
    made = vorlan.SB_GlobalParameters()
    made.PRint_MACIndex, made.PRdbl_CCDataRate, made.PRbln_FadingEnabled = 5, 76.8, False
    made.PRstr_PilotPN = "000000111"
    return made


def test_subscripts_in_all_their_forms():
    message = vorlan.MessageObject()
    message.Octet[3] = 240
    assert message.octet[3] == message.Octet(3) == 240
    reject = vorlan.SB_App_MsgReservationReject()
    reject.PRstr_ReservationCount = "00000001"
    reject.PRstr_Link = "1"  # The index may be left out.
    assert reject.PRstr_Link == reject.PRstr_Link() == reject.PRstr_Link[0] == "1"


@pytest.mark.parametrize("use, result", [
    (lambda p: [bool(p.PRbln_FadingEnabled), bool(p.PRint_MACIndex), not p.PRstr_PilotPN], [False, True, False]),
    (lambda p: [p.PRint_MACIndex == 5, 5 == p.PRint_MACIndex, p.PRint_MACIndex != 5, p.PRint_MACIndex == "5"],
     [True, True, False, False]),
    (lambda p: [p.PRint_MACIndex < 6, 6 <= p.PRint_MACIndex, p.PRint_MACIndex < p.PRdbl_CCDataRate], [True, False, True]),
    (lambda p: [p.PRint_MACIndex in (4, 5), p.PRstr_PilotPN in {"000000111": 1}, len({p.PRint_MACIndex, 5})],
     [True, True, 1]),
    (lambda p: f"{p.PRint_MACIndex:03} {p.PRstr_PilotPN} {p.PRbln_FadingEnabled!s} %d" % p.PRint_MACIndex,
     "005 000000111 False 5"),
    (lambda p: [int(p.PRstr_PilotPN), int(p.PRdbl_CCDataRate), float(p.PRint_MACIndex), math.sqrt(p.PRint_MACIndex) > 2],
     [111, 76, 5.0, True]),
    (lambda p: ["abcdef"[p.PRint_MACIndex], range(p.PRint_MACIndex), hex(p.PRbln_FadingEnabled)],
     ["f", range(5), "0x0"]),
    (lambda p: [functions.LongToBin(p.PRint_MACIndex, 8), functions.LongToBin(vorlan.ByRef(p.PRint_MACIndex), 8)],
     ["00000101"] * 2),
    (lambda p: [setattr(p, "PRint_SecurityType", p.PRint_MACIndex), p.PRint_SecurityType()], [None, 5]),
    (lambda p: [p.PRint_MACIndex(), p.PRint_MACIndex[""]], [5, 5]),
    (lambda p: repr(p.PRstr_PilotPN), "<indexed property SB_GlobalParameters.PRstr_PilotPN = '000000111'>"),
])
def test_where_every_index_may_be_left_out_it_is_its_value(parameters, use, result):
    assert use(parameters) == result


@pytest.mark.parametrize("use, exception, text", [
    (lambda p: int(p.PRint_MACIndex < "5"), TypeError, "'<' not supported between instances of 'int' and 'str'"),
    (lambda p: operator.index(p.PRdbl_CCDataRate), TypeError, "'float' object"),
    (lambda p: int(p.PRstr_FileName), ValueError, "invalid literal"),
    *((use, TypeError, r"^MessageObject.Octet has no value without an index: write Octet\[Index\]$") for use in (
        lambda _: bool(octet), lambda _: int(octet), lambda _: float(octet), lambda _: octet == 5, lambda _: "5" != octet,
        lambda _: octet < 5, lambda p: p.PRint_MACIndex == octet, lambda _: octet in (None,))),
])
def test_what_has_no_such_value_says_so(parameters, use, exception, text):
    with pytest.raises(exception, match=text):
        use(parameters)


def test_an_index_that_is_needed_changes_nothing_for_identity():
    assert octet is octet and octet == octet and hash(octet) and octet != inspect and octet != int


def test_errors_of_the_read_pass_and_what_merely_looks_does_not_read():
    unread = vorlan.SB_MAC_ValAssociatedFlowsNN().PRstr_Stream  # There is no element yet.
    for use in (bool, str, int, hash, lambda held: held == "1", functions.AddPadding):
        with pytest.raises(vorlan.AutomationError) as raised:
            use(unread)
        assert (raised.value.number, raised.value.source) == (9, "SB_MAC_ValAssociatedFlowsNN.PRstr_Stream")
    assert repr(unread) == "<indexed property SB_MAC_ValAssociatedFlowsNN.PRstr_Stream>"
    for handle in (unread, octet):
        assert handle.__doc__.splitlines()[0] in pydoc.plain(pydoc.render_doc(handle))
        with pytest.raises(ValueError, match="not supported by signature"):
            inspect.signature(handle)
