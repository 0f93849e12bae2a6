"""The library's objects from Python: properties, methods, arguments, errors."""

import datetime

import pytest
import vorlan

functions = vorlan.SB_GeneralFunctions()


def test_objects_show_what_they_are():
    sent = vorlan.SB_Ses_MsgSessionClose()
    assert repr(sent).startswith("<vorlan.SB_Ses_MsgSessionClose object at ")
    assert sent.Initialize(TestSet=None) is None
    message = vorlan.CreateObject("VorlanSim.MessageObject")
    sent.PRstr_CloseReason = "00000011"
    sent.CreateMessage(message)
    received = vorlan.CreateObject("sb_ses_msgsessionclose")
    received.PRobj_MessageObject = message
    lines = repr(received).splitlines()
    assert lines[0] == "SB_Ses_MsgSessionClose received, 16 bits"
    assert any("CloseReason" in line and "protocol configuration failure" in line for line in lines)


@pytest.mark.parametrize("value, becomes", [
    (5, 5), (-40000, -40000), (2**40, 2.0**40), (1.25, 1.25), (True, True), ("text\0 äß \udcff", "text\0 äß \udcff"),
    (None, None), (vorlan.Null, vorlan.Null), (vorlan.Empty, None), (functions, functions), (pytest, pytest),
    ((1, ["a", None], []), [1, ["a", None], []]),
    (datetime.datetime(2024, 2, 29, 23, 59, 59, 999000), datetime.datetime(2024, 2, 29, 23, 59, 59, 999000)),
    (datetime.datetime(1, 1, 1, 6), datetime.datetime(1, 1, 1, 6)),
    (datetime.date(1899, 12, 30), datetime.datetime(1899, 12, 30)),
])
def test_a_value_survives_the_way_in_and_out(value, becomes):
    held = vorlan.ByRef(value)
    try:
        functions.DecToBin(held, 8)
    except vorlan.AutomationError:
        pass  # Not all of them are numbers; a raised error gives arguments back as well.
    assert held.value == becomes and type(held.value) is type(becomes)


@pytest.mark.parametrize("value, text", [
    (32767, "32767000"), (1e15, "1E+15000"), (True, "True0000"), ("", ""), (vorlan.Empty, ""),
    (datetime.datetime(2024, 2, 29, 1, 2, 3), "2024-02-29 01:02:0300000"),
    (datetime.datetime(2024, 1, 1, tzinfo=datetime.timezone.utc).astimezone(), None),
])
def test_a_value_as_text(value, text):
    if text is None:
        text = value.strftime("%Y-%m-%d %H:%M:%S00000")
    assert functions.AddPadding(value) == text


def test_arguments_by_reference_and_by_name():
    value, width = vorlan.ByRef(-5), vorlan.ByRef(8)
    assert functions.LongToBin(value, width) == functions.LongToBin(Width=8, VALUE=-5)
    assert (value.value, width.value) == (-5, 7)
    assert repr(width) == "vorlan.ByRef(7)" and vorlan.ByRef().value is vorlan.Empty


request = vorlan.SB_Ses_MsgUATIRequest()
close = vorlan.SB_Ses_MsgSessionClose()
endless = []
endless.append(endless)


@pytest.mark.parametrize("call, number, source, description", [
    (lambda: vorlan.CreateObject("Vorlan.SB_Nothing"), 429, "Vorlan", "ActiveX component can't create object: "
     "Vorlan.SB_Nothing"),
    (lambda: vorlan.CreateObject("Other.SB_Sector"), 429, "Vorlan", None),
    (lambda: close.Initialize(), 450, "SB_Ses_MsgSessionClose.Initialize", None),
    (lambda: close.Initialize(None, Testset=None), 450, "SB_Ses_MsgSessionClose.Initialize", None),
    (lambda: close.Initialize(None, Encoder=""), 448, "SB_Ses_MsgSessionClose.Initialize",
     "Named argument not found: Encoder"),
    (lambda: setattr(close, "PRstr_MessageID", "1"), 438, "SB_Ses_MsgSessionClose.PRstr_MessageID", None),
    (lambda: close.PRstr_MoreInf, 438, "SB_Ses_MsgSessionClose", None),
    (lambda: setattr(close, "Füllung", 1), 438, "SB_Ses_MsgSessionClose", None),
    (lambda: delattr(close, "PRstr_MoreInfo"), 438, "SB_Ses_MsgSessionClose", None),
    (lambda: functions.AddPadding(10**400), 6, "", None),
    (lambda: functions.AddPadding(vorlan.Null), 94, "SB_GeneralFunctions.AddPadding", "Invalid use of Null"),
    (lambda: vorlan.MessageObject().Octet[1, 2], 450, "MessageObject.Octet", None),
])
def test_errors(call, number, source, description):
    with pytest.raises(vorlan.AutomationError) as raised:
        call()
    error = raised.value
    assert (error.number, error.source, error.help_file) == (number, source, "")
    assert error.description == description or description is None
    assert isinstance(error, AttributeError) == (number == 438)
    assert error.description in str(error)


@pytest.mark.parametrize("call, exception", [
    (lambda: vorlan.Object(), TypeError), (lambda: vorlan.SB_Ses_MsgSessionClose(1), TypeError),
    (lambda: vorlan.SB_Nothing, AttributeError), (lambda: type(close).Initialize(request, None), TypeError),
    (lambda: iter(vorlan.MessageObject().Octet), TypeError), (lambda: functions.AddPadding("\ud800"), UnicodeError),
    (lambda: functions.AddPadding(endless), RecursionError),
])
def test_misuse_that_python_knows(call, exception):
    with pytest.raises(exception):
        call()


def test_questions_are_answered_without_an_error():
    assert not hasattr(close, "PRstr_Nothing") and getattr(close, "__len__", None) is None
    assert type(close) is vorlan.SB_Ses_MsgSessionClose is vorlan.sb_ses_msgsessionclose
    type(close).Initialize(close, None)
    assert isinstance(close, vorlan.Object)
