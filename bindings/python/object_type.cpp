#include "object_type.hpp"

#include <structmember.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include "errors.hpp"
#include "member_handle.hpp"
#include "message_text.hpp"
#include "value_conversion.hpp"

namespace vorlan::python {

namespace {

/// Gives changed arguments back to the ByRef objects they came from, however the call ends.
class WriteBack {
 public:
  WriteBack(State& state, PyObject* const* arguments, std::span<const Value> values)
      : state_(state), arguments_(arguments), values_(values) {}
  WriteBack(const WriteBack&) = delete;
  WriteBack& operator=(const WriteBack&) = delete;
  ~WriteBack() {
    for (std::size_t i = 0; i < values_.size(); ++i) {
      if (Py_TYPE(arguments_[i]) != state_.by_ref_type) continue;
      try {
        py::handle(arguments_[i]).cast<ByRef&>().value = to_object(state_, values_[i]);
      } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch)
        // A value that Python cannot hold; the caller keeps its own.
      }
    }
  }

 private:
  State& state_;
  PyObject* const* arguments_;
  std::span<const Value> values_;
};

/// Arguments in the member's order, whether given by position or by name. One left out before the last is Empty.
std::vector<PyObject*> place_by_name(const Wrapper& self, const MemberInfo& info, PyObject* const* arguments,
                                     std::size_t count, PyObject* names, PyObject* left_out) {
  std::vector<PyObject*> placed(arguments, arguments + count);
  const auto source = [&] { return std::string(self.cls->info().name()) + "." + std::string(info.name); };
  for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(names); ++i) {
    const auto name = py::handle(PyTuple_GET_ITEM(names, i)).cast<std::string>();
    const auto parameter = std::find_if(info.parameters.begin(), info.parameters.end(),
                                        [&](const auto& p) { return equals_ignoring_case(p.name, name); });
    if (parameter == info.parameters.end()) {
      throw Error(kNamedArgumentNotFound, source(), "Named argument not found: " + name);
    }
    const auto place = static_cast<std::size_t>(parameter - info.parameters.begin());
    if (place >= placed.size()) placed.resize(place + 1, left_out);
    if (place < count || placed[place] != left_out) throw Error(ErrorNumber::WrongArgumentCount, source(), name);
    placed[place] = arguments[count + static_cast<std::size_t>(i)];
  }
  return placed;
}

PyObject* call(Wrapper& self, const Member& member, Access access, PyObject* const* arguments, std::size_t count) {
  State& state = self.cls->state();
  const std::string_view name = member.info->name;
  if (count == 0) return from_value(state, self.object->invoke(name, access, {}));
  constexpr std::size_t kUsual = 4;
  std::array<Value, kUsual> few;
  std::vector<Value> many;
  if (count > kUsual) many.resize(count);
  const std::span<Value> values = count > kUsual ? std::span<Value>(many) : std::span<Value>(few).first(count);
  for (std::size_t i = 0; i < count; ++i) values[i] = to_value(state, arguments[i]);
  const bool assigns = access == Access::Let || access == Access::Set;
  if (assigns && member.info->sets && values.back().is(ValueType::Object)) access = Access::Set;
  const WriteBack write_back(state, arguments, values);
  return from_value(state, self.object->invoke(name, access, values));
}

PyObject* get_attribute(PyObject* self, PyObject* name) noexcept {
  Wrapper& wrapper = as_wrapper(self);
  const Member* member = wrapper.cls->find(name);
  if (member != nullptr) {
    if (member->kind == Member::Kind::Property) return invoke(wrapper, *member, Access::Get, nullptr, 0);
    return make_handle(*wrapper.cls, *member, self);
  }
  PyObject* found = PyObject_GenericGetAttr(self, name);
  if (found != nullptr || PyErr_ExceptionMatches(PyExc_AttributeError) == 0) return found;
  PyErr_Clear();
  set_member_not_found(wrapper.cls->state(), wrapper.cls->info().name(), self, name);
  return nullptr;
}

int set_attribute(PyObject* self, PyObject* name, PyObject* value) noexcept {
  Wrapper& wrapper = as_wrapper(self);
  const Member* member = wrapper.cls->find(name);
  if (member == nullptr || value == nullptr) {
    set_member_not_found(wrapper.cls->state(), wrapper.cls->info().name(), self, name);
    return -1;
  }
  PyObject* done = invoke(wrapper, *member, Access::Let, &value, 1);
  Py_XDECREF(done);
  return done != nullptr ? 0 : -1;
}

PyObject* represent(PyObject* self) noexcept {
  const Wrapper& wrapper = as_wrapper(self);
  return guarded(wrapper.cls->state(), [&]() -> PyObject* {
    const std::string text = received_message_text(*wrapper.object);
    if (!text.empty()) return PyUnicode_FromStringAndSize(text.data(), static_cast<Py_ssize_t>(text.size()));
    return PyUnicode_FromFormat("<%s object at %p>", Py_TYPE(self)->tp_name, wrapper.object);
  });
}

}  // namespace

void deallocate(PyObject* self) noexcept {
  Wrapper& wrapper = as_wrapper(self);
  PyTypeObject* type = Py_TYPE(self);
  if (wrapper.weak_references != nullptr) PyObject_ClearWeakRefs(self);
  if (wrapper.object != nullptr) {
    wrapper.cls->state().wrappers.erase(wrapper.object);
    wrapper.object->release();
  }
  type->tp_free(self);
  Py_DECREF(type);
}

PyObject* invoke(Wrapper& self, const Member& member, Access access, PyObject* const* arguments, std::size_t count,
                 PyObject* names) noexcept {
  State& state = self.cls->state();
  return guarded(state, [&] {
    if (names == nullptr) return call(self, member, access, arguments, count);
    const auto placed = place_by_name(self, *member.info, arguments, count, names, state.empty);
    return call(self, member, access, placed.data(), placed.size());
  });
}

PyObject* wrap(State& state, const Ref<Object>& object) {
  const auto known = state.wrappers.find(object.get());
  if (known != state.wrappers.end()) return Py_NewRef(known->second);
  static const ClassInfo kForeign{{"Object", "An object of another server; it can be handed on.", {}}, {}};
  const ClassInfo* info = object->class_info();
  ClassType& cls = class_type(state, info != nullptr ? *info : kForeign);
  auto* made = reinterpret_cast<Wrapper*>(cls.type()->tp_alloc(cls.type(), 0));
  if (made == nullptr) throw py::error_already_set();
  made->cls = &cls;
  auto* face = reinterpret_cast<PyObject*>(made);
  const py::object held = py::reinterpret_steal<py::object>(face);
  state.wrappers.emplace(object.get(), face);
  made->object = Ref<Object>(object).detach();
  return Py_NewRef(face);
}

void add_object_type(State& state, py::module_& module) {
  static std::array members{
      PyMemberDef{"__weaklistoffset__", T_PYSSIZET, offsetof(Wrapper, weak_references), READONLY, nullptr},
      PyMemberDef{},
  };
  constexpr const char* kText = "Base of all classes of the library: members are found without regard to case.";
  std::array slots{
      PyType_Slot{Py_tp_doc, const_cast<char*>(kText)},
      PyType_Slot{Py_tp_dealloc, reinterpret_cast<void*>(&deallocate)},
      PyType_Slot{Py_tp_getattro, reinterpret_cast<void*>(&get_attribute)},
      PyType_Slot{Py_tp_setattro, reinterpret_cast<void*>(&set_attribute)},
      PyType_Slot{Py_tp_repr, reinterpret_cast<void*>(&represent)},
      PyType_Slot{Py_tp_members, members.data()},
      PyType_Slot{0, nullptr},
  };
  PyType_Spec spec{"vorlan.Object", sizeof(Wrapper), 0,
                   Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE | Py_TPFLAGS_DISALLOW_INSTANTIATION, slots.data()};
  state.object_type = reinterpret_cast<PyTypeObject*>(PyType_FromSpec(&spec));
  if (state.object_type == nullptr) throw py::error_already_set();
  module.attr("Object") = py::handle(reinterpret_cast<PyObject*>(state.object_type));
}

}  // namespace vorlan::python
