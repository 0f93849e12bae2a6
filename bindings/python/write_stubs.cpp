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

class _ReadOnlyIndexedProperty(Generic[_Index, _Value]):
    def __getitem__(self, index: _Index) -> _Value: ...
    def __call__(self, *index: Any) -> _Value: ...

class _IndexedProperty(_ReadOnlyIndexedProperty[_Index, _Value]):
    def __setitem__(self, index: _Index, value: _Value) -> None: ...

def classes() -> list[str]:
    """The names of all classes."""
)";

std::string argument_type(const ParameterInfo& parameter) {
  std::string text(python_type(parameter.type));
  if (text == "Any") return text;
  if (parameter.by_reference) text += " | ByRef";
  if (parameter.optional) text += " | EmptyType";
  return text;
}

std::string index_type(const MemberInfo& member) {
  const auto& parameters = member.parameters;
  if (parameters.size() == 1) return std::string(python_type(parameters[0].type));
  std::string text = "tuple[";
  for (const ParameterInfo& parameter : parameters) {
    text.append(text.back() == '[' ? "" : ", ").append(python_type(parameter.type));
  }
  return text + "]";
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
    define((writable ? "_IndexedProperty[" : "_ReadOnlyIndexedProperty[") + index_type(member) + ", " + type + "]");
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
