"""The behaviour that all ways in share, through the Python module."""

from pathlib import Path

import pytest
import vorlan
from behaviour import ABSENT, CASES, File, run

PROJECT = Path(__file__).resolve().parents[2]


class InProcess:
    Error = vorlan.AutomationError
    create = staticmethod(vorlan.CreateObject)

    @staticmethod
    def invoke(target, member, access, arguments):
        arguments = [vorlan.Empty if a is ABSENT else str(PROJECT / a.path) if isinstance(a, File) else a
                     for a in arguments]
        if access == "Call":
            changed = [vorlan.ByRef(a) for a in arguments]
            return getattr(target, member)(*changed), [a.value for a in changed]
        if access == "Get":
            held = getattr(target, member)
            return (held[tuple(arguments)] if arguments else held), arguments
        *index, value = arguments
        if index:
            getattr(target, member)[tuple(index)] = value
        else:
            setattr(target, member, value)
        return None, arguments


@pytest.mark.parametrize("steps", CASES.values(), ids=CASES)
def test_behaviour(steps):
    run(InProcess, steps)
