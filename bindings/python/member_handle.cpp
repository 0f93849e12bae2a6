#include "member_handle.hpp"

#include <structmember.h>

#include <array>
#include <cstddef>

#include "errors.hpp"
#include "handle_value.hpp"
#include "listing.hpp"
#include "object_type.hpp"

namespace vorlan::python {

namespace {

PyObject* to_python(std::string_view text) noexcept {
  return PyUnicode_FromStringAndSize(text.data(), static_cast<Py_ssize_t>(text.size()));
}

void deallocate_handle(PyObject* object) noexcept {
  PyTypeObject* type = Py_TYPE(object);
  Py_XDECREF(as_handle(object).self);
  type->tp_free(object);
  Py_DECREF(type);
}

PyObject* call_handle(PyObject* object, PyObject* const* arguments, std::size_t flags, PyObject* names) noexcept {
  const Handle& handle = as_handle(object);
  auto count = static_cast<std::size_t>(PyVectorcall_NARGS(flags));
  PyObject* self = handle.self;
  if (self == nullptr) {
    if (count == 0 || PyObject_TypeCheck(*arguments, handle.cls->type()) == 0) {
      PyErr_Format(PyExc_TypeError, "the first argument must be a %s", handle.cls->type()->tp_name);
      return nullptr;
    }
    self = *arguments++;
    --count;
  }
  // A call may drop the last name of the object.
  const py::object held = py::reinterpret_borrow<py::object>(self);
  const bool method = handle.member->kind == Member::Kind::Method;
  return invoke(as_wrapper(self), *handle.member, method ? Access::Call : Access::Get, arguments, count, names);
}

/// The subscript, and the value that is assigned if there is one: [i] is one argument, [i, j] are two.
PyObject* use_subscript(PyObject* object, PyObject* key, PyObject* value) noexcept {
  const Handle& handle = as_handle(object);
  const bool several = PyTuple_Check(key);
  PyObject* const* first = several ? &PyTuple_GET_ITEM(key, 0) : &key;
  const std::size_t count = several ? static_cast<std::size_t>(PyTuple_GET_SIZE(key)) : 1;
  if (value == nullptr) return invoke(as_wrapper(handle.self), *handle.member, Access::Get, first, count);
  return guarded(handle.cls->state(), [&] {
    std::vector<PyObject*> arguments(first, first + count);
    arguments.push_back(value);
    return invoke(as_wrapper(handle.self), *handle.member, Access::Let, arguments.data(), arguments.size());
  });
}

PyObject* get_item(PyObject* object, PyObject* key) noexcept { return use_subscript(object, key, nullptr); }

int set_item(PyObject* object, PyObject* key, PyObject* value) noexcept {
  if (value == nullptr) {
    PyErr_SetString(PyExc_TypeError, "an element of a property cannot be deleted");
    return -1;
  }
  PyObject* done = use_subscript(object, key, value);
  Py_XDECREF(done);
  return done != nullptr ? 0 : -1;
}

/// A method found in its class becomes the object's own.
PyObject* bind(PyObject* object, PyObject* instance, PyObject*) noexcept {
  const Handle& handle = as_handle(object);
  if (handle.self != nullptr || instance == nullptr || instance == Py_None) return Py_NewRef(object);
  return make_handle(*handle.cls, *handle.member, instance);
}

PyObject* represent_handle(PyObject* object) noexcept {
  const Handle& handle = as_handle(object);
  State& state = handle.cls->state();
  return guarded(state, [&] {
    const Member& member = *handle.member;
    const bool method = member.kind == Member::Kind::Method;
    const std::string text = (method ? "<method " : "<indexed property ") + qualified_name(handle);
    if (member.kind != Member::Kind::Optional || member.info->get_changes) return to_python(text + ">");
    const auto value = py::reinterpret_steal<py::object>(read_handle(object));
    if (value) return py::str("{} = {!r}>").format(text, value).release().ptr();
    if (PyErr_ExceptionMatches(state.automation_error) == 0) throw py::error_already_set();
    PyErr_Clear();
    return to_python(text + ">");
  });
}

template <auto Text>
PyObject* get_text(PyObject* object, void*) noexcept {
  const Handle& handle = as_handle(object);
  return guarded(handle.cls->state(), [&] { return to_python(Text(handle)); });
}

PyObject* get_self(PyObject* object, void*) noexcept {
  PyObject* self = as_handle(object).self;
  return Py_NewRef(self != nullptr ? self : Py_None);
}

std::array kGetters{
    PyGetSetDef{"__doc__", &get_text<[](const Handle& h) { return member_text(*h.member->info); }>, nullptr, nullptr,
                nullptr},
    PyGetSetDef{"__name__", &get_text<[](const Handle& h) { return std::string(h.member->info->name); }>, nullptr,
                nullptr, nullptr},
    PyGetSetDef{"__qualname__", &get_text<qualified_name>, nullptr, nullptr, nullptr},
    PyGetSetDef{"__text_signature__", &get_text<[](const Handle& h) { return text_signature(*h.member->info); }>,
                nullptr, nullptr, nullptr},
    PyGetSetDef{"__self__", &get_self, nullptr, nullptr, nullptr},
    PyGetSetDef{},
};

std::array kMembers{
    PyMemberDef{"__vectorcalloffset__", T_PYSSIZET, offsetof(Handle, call), READONLY, nullptr},
    PyMemberDef{},
};

}  // namespace

std::string qualified_name(const Handle& handle) {
  return std::string(handle.cls->info().name()) + "." + std::string(handle.member->info->name);
}

PyObject* read_handle(PyObject* handle) noexcept { return call_handle(handle, nullptr, 0, nullptr); }

Value value_of_handle(PyObject* object) {
  const Handle& handle = as_handle(object);
  return as_wrapper(handle.self).object->invoke(handle.member->info->name, Access::Get, {});
}

PyObject* make_handle(const ClassType& cls, const Member& member, PyObject* self) noexcept {
  const State& state = cls.state();
  PyTypeObject* type = member.kind == Member::Kind::Method    ? state.method_type
                       : member.kind == Member::Kind::Indexed ? state.indexed_type
                                                              : state.optional_type;
  auto* made = reinterpret_cast<Handle*>(type->tp_alloc(type, 0));
  if (made == nullptr) return nullptr;
  made->self = Py_XNewRef(self);
  made->cls = &cls;
  made->member = &member;
  made->call = &call_handle;
  return reinterpret_cast<PyObject*>(made);
}

void add_member_types(State& state) {
  const auto make = [](const char* name, std::span<const PyType_Slot> own, std::span<const PyType_Slot> value = {}) {
    std::vector<PyType_Slot> slots{
        {Py_tp_dealloc, reinterpret_cast<void*>(&deallocate_handle)},
        {Py_tp_repr, reinterpret_cast<void*>(&represent_handle)},
        {Py_tp_call, reinterpret_cast<void*>(&PyVectorcall_Call)},
        {Py_tp_getset, kGetters.data()},
        {Py_tp_members, kMembers.data()},
    };
    slots.insert(slots.end(), own.begin(), own.end());
    slots.insert(slots.end(), value.begin(), value.end());
    slots.push_back({0, nullptr});
    PyType_Spec spec{name, sizeof(Handle), 0,
                     Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL | Py_TPFLAGS_DISALLOW_INSTANTIATION, slots.data()};
    PyObject* type = PyType_FromSpec(&spec);
    if (type == nullptr) throw py::error_already_set();
    return reinterpret_cast<PyTypeObject*>(type);
  };
  const std::array method{PyType_Slot{Py_tp_descr_get, reinterpret_cast<void*>(&bind)}};
  const std::array indexed{PyType_Slot{Py_mp_subscript, reinterpret_cast<void*>(&get_item)},
                           PyType_Slot{Py_mp_ass_subscript, reinterpret_cast<void*>(&set_item)}};
  state.method_type = make("vorlan.Method", method);
  state.indexed_type = make("vorlan.IndexedProperty", indexed, slots_of_needed_index());
  state.optional_type = make("vorlan.OptionallyIndexedProperty", indexed, slots_of_optional_index());
}

}  // namespace vorlan::python
