// Writes the type stubs of the Python module to standard output: every class of the registry, with its members.
#include <iostream>

#include "listing.hpp"

namespace vorlan::python {

namespace {

constexpr std::string_view kHead = R"(# Made from the class registry when the project is built.
import datetime
from typing import Any, Final, Generic, Literal, TypeVar, final, overload

_Index = TypeVar("_Index")
_Value = TypeVar("_Value")
_Read = TypeVar("_Read", covariant=True)

__version__: str

class NullType: ...
class EmptyType: ...

Null: Final[NullType]
Empty: Final[EmptyType]

class AutomationError(Exception):
    number: int
    source: str
    description: str
    help_file: str
    def __init__(self, number: int, source: str = "", description: str = "", help_file: str = "") -> None: ...

class MemberNotFoundError(AutomationError, AttributeError):
    """Error 438."""

class ByRef:
    """An argument passed by reference: after the call, value is what it became."""
    value: Any
    def __init__(self, value: Any = ...) -> None: ...

class Object:
    """Base of all classes of the library."""

class _ReadOnlyIndexedProperty(Generic[_Index, _Read]):
    def __getitem__(self, index: _Index) -> _Read: ...
    def __call__(self, *index: Any) -> _Read: ...

class _IndexedProperty(_ReadOnlyIndexedProperty[_Index, _Value]):
    def __setitem__(self, index: _Index, value: _Value | _Held[_Value]) -> None: ...

class _Held(Generic[_Read]):
    """A property whose indices may all be left out: the value itself where Python asks for one."""
    def __call__(self, *index: Any) -> _Read: ...
    def __bool__(self) -> bool: ...
    def __int__(self) -> int: ...
    def __float__(self) -> float: ...
    def __index__(self) -> int: ...
    def __format__(self, specification: str) -> str: ...
    def __hash__(self) -> int: ...
    def __eq__(self, other: object) -> bool: ...
    def __lt__(self, other: Any) -> bool: ...
    def __le__(self, other: Any) -> bool: ...
    def __gt__(self, other: Any) -> bool: ...
    def __ge__(self, other: Any) -> bool: ...

class _ReadOnlyHeldProperty(_Held[_Read], _ReadOnlyIndexedProperty[_Index, _Read], Generic[_Index, _Read]): ...
class _HeldProperty(_Held[_Value], _IndexedProperty[_Index, _Value], Generic[_Index, _Value]): ...

class _AssignableProperty(Generic[_Index, _Value]):
    @overload
    def __get__(self, instance: None, owner: type) -> property: ...
    @overload
    def __get__(self, instance: Object, owner: type) -> _HeldProperty[_Index, _Value]: ...
    def __set__(self, instance: Object, value: _Value | _Held[_Value]) -> None: ...

def classes() -> list[str]:
    """The names of all classes."""
)";

std::string argument_type(const ParameterInfo& parameter) {
  std::string type(python_type(parameter.type));
  if (type == "Any") return type;
  std::string text = type + " | _Held[" + type + "]";
  if (parameter.by_reference) text += " | ByRef";
  if (parameter.optional) text += " | EmptyType";
  return text;
}

/// "int | tuple[int, str]" where the second index may be left out.
std::string index_type(const MemberInfo& member) {
  const auto& parameters = member.parameters;
  std::string text;
  std::string types;
  for (std::size_t count = 1; count <= parameters.size(); ++count) {
    types.append(count == 1 ? "" : ", ").append(python_type(parameters[count - 1].type));
    if (count < member.required_parameters()) continue;
    text.append(text.empty() ? "" : " | ").append(count == 1 ? types : "tuple[" + types + "]");
  }
  return text;
}

/// A docstring that is one line of Python.
std::string docstring(std::string_view text) {
  std::string line = "\"\"\"";
  for (const char c : text) {
    if (c == '\\' || c == '"') line += '\\';
    line += c;
  }
  return line + "\"\"\"";
}

void write_method(std::ostream& out, const MemberInfo& member) {
  out << "    def " << member.name << "(self";
  for (const ParameterInfo& parameter : member.parameters) {
    out << ", " << parameter.name << ": " << argument_type(parameter) << (parameter.optional ? " = ..." : "");
  }
  out << ") -> " << python_type(member.type) << ":\n        " << docstring(member.summary) << "\n";
}

void write_property(std::ostream& out, const MemberInfo& member) {
  const bool writable = member.lets || member.sets;
  const std::string type(python_type(member.type));
  const std::string indented_text = "        " + docstring(member.summary) + "\n";
  const auto define = [&](std::string_view result) {
    out << "    @property\n    def " << member.name << "(self) -> " << result << ":\n" << indented_text;
  };
  if (!member.parameters.empty()) {
    const bool held = member.required_parameters() == 0;
    const std::string types = "Property[" + index_type(member) + ", " + type + "]";
    if (held && writable) {
      // A property's setter takes what its getter gives; a descriptor's may take another type.
      out << "    " << member.name << ": _Assignable" << types << "\n    " << docstring(member.summary) << "\n";
    } else {
      define(std::string(writable ? "_" : "_ReadOnly").append(held ? "Held" : "Indexed") + types);
    }
    return;
  }
  define(type);
  if (!writable) return;
  out << "    @" << member.name << ".setter\n    def " << member.name << "(self, value: " << type << ") -> None: ...\n";
}

void write_class(std::ostream& out, const ClassInfo& info) {
  out << "\n@final\nclass " << info.name() << "(Object):\n    " << docstring(info.summary()) << "\n";
  for (const MemberInfo& member : info.members()) {
    member.is_method() ? write_method(out, member) : write_property(out, member);
  }
}

void write(std::ostream& out) {
  const Registry registry = module_registry();
  out << kHead;
  for (const Registry::Class& listed : registry.classes()) {
    out << "\n@overload\ndef CreateObject(name: Literal[\"" << listed.name() << "\", \"" << listed.prog_id()
        << "\"]) -> " << listed.name() << ": ...";
  }
  out << "\n@overload\ndef CreateObject(name: str) -> Any:\n    " << docstring("Creates an object by its class's name.")
      << "\n";
  for (const Registry::Class& listed : registry.classes()) write_class(out, listed.info());
}

}  // namespace

}  // namespace vorlan::python

int main() {
  vorlan::python::write(std::cout);
  return std::cout.flush() ? 0 : 1;
}
