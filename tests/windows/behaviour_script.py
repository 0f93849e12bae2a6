"""The behaviour that all ways in share, written out as VBScript."""

from behaviour import ABSENT, ANY, CASES, File, Name
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]


def literal(value):
    if isinstance(value, File):
        value = "Z:" + str(PROJECT / value.path).replace("/", "\\")
    if isinstance(value, Name):
        return value.variable
    if isinstance(value, str):
        ascii_parts = "".join(c if c.isascii() else f'" & Chr({ord(c)}) & "' for c in value.replace('"', '""'))
        return f'"{ascii_parts}"'
    if isinstance(value, list):
        return f"Array({', '.join(map(literal, value))})"
    return "Nothing" if value is None else "" if value is ABSENT else str(value)


def is_object(value):
    return value is None or isinstance(value, Name)


def statements(step):
    """A step: its arguments go by reference, as a script's variables do."""
    target, what = f"{step.variable}.{step.member}", literal(f"{step.variable}.{step.member}")
    *arguments, value = step.arguments if step.access in ("Let", "Set") else (*step.arguments, ABSENT)
    names = ["" if a is ABSENT else f"argument{i}" for i, a in enumerate(arguments)]
    before = [f"{'Set ' * is_object(a)}{name} = {literal(a)}" for name, a in zip(names, arguments) if name]
    place = f"{target}({', '.join(names)})" if names else target
    if step.access == "Create":
        does = f'Set {step.variable} = CreateObject("{step.member}")'
    elif value is not ABSENT:
        does = f"{'Set ' * is_object(value)}{place} = {literal(value)}"
    elif step.into:
        does = f"Set {step.into} = {place}"
    elif step.access == "Call" and step.gives is ANY:
        does = f"{target} {', '.join(names)}"
    elif is_object(step.gives):
        does = f"Holds {what}, {place} Is {literal(step.gives)}"
    elif step.gives is ANY:
        does = f"ignored = {place}"
    else:
        does = f"Equal {what}, {place}, {literal(step.gives)}"
    if step.error:
        told = zip(("Number", "Source", "Description"), step.error)
        checks = [f"Equal {what}, Err.{part}, {literal(due)}" for part, due in told if due is not ANY]
        return [*before, "On Error Resume Next", does, *checks, "Err.Clear", "On Error Goto 0"]
    return [*before, does, *(f"Equal {what}, {name}, {literal(a)}" for name, a in zip(names, step.changed or ()))]


def script():
    lines = []
    for number, (title, steps) in enumerate(CASES.items()):
        names = {name for step in steps for name in (step.variable, step.into) if name}
        names |= {f"argument{i}" for i in range(max(len(step.arguments) for step in steps))} | {"ignored"}
        body = [line for step in steps for line in statements(step)]
        lines += [f"Sub Case{number}", f"  Dim {', '.join(sorted(names))}", *(f"  {line}" for line in body), "End Sub",
                  "On Error Resume Next", f"Case{number}",  # the host keeps to itself what ends a script
                  f"Equal {literal(title)}, Err.Number & Err.Description, \"0\"", "Err.Clear", "On Error Goto 0"]
    return "\n".join(lines)
