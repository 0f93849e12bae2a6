#include "class_type.hpp"

#include <bit>

#include "errors.hpp"
#include "listing.hpp"
#include "member_handle.hpp"
#include "object_type.hpp"

namespace vorlan::python {

namespace {

Member::Kind kind_of(const MemberInfo& member) {
  if (member.is_method()) return Member::Kind::Method;
  if (member.parameters.empty()) return Member::Kind::Property;
  return member.required_parameters() == 0 ? Member::Kind::Optional : Member::Kind::Indexed;
}

std::vector<Member> members_of(const ClassInfo& info) {
  std::vector<Member> members;
  for (const MemberInfo& member : info.members()) members.push_back({&member, kind_of(member)});
  return members;
}

}  // namespace

NameCache::NameCache(std::size_t members) : entries_(std::bit_ceil(members * 4 + 8)) {}

void NameCache::remember(PyObject* name, const Member& member) {
  if (used_ * 2 >= entries_.size()) return;
  std::size_t slot = hash(name);
  while (entries_[slot & (entries_.size() - 1)].name != nullptr) ++slot;
  entries_[slot & (entries_.size() - 1)] = {Py_NewRef(name), &member};
  ++used_;
}

ClassType::ClassType(State& state, const ClassInfo& info)
    : state_(state), info_(info), members_(members_of(info)), cache_(members_.size()) {
  make_type();
  add_members();
  add_constructor();
}

const Member* ClassType::look_up(PyObject* name) {
  Py_ssize_t size = 0;
  const char* text = PyUnicode_AsUTF8AndSize(name, &size);
  if (text == nullptr) {
    PyErr_Clear();
    return nullptr;
  }
  const int index = info_.find(std::string_view(text, static_cast<std::size_t>(size)));
  if (index < 0) return nullptr;
  const Member& member = members_[static_cast<std::size_t>(index)];
  if (PyUnicode_CHECK_INTERNED(name)) cache_.remember(name, member);
  return &member;
}

void ClassType::make_type() {
  name_ = "vorlan." + std::string(info_.name());
  std::string text = class_text(info_);
  std::array slots{
      PyType_Slot{Py_tp_doc, text.data()},
      // Named again, for a class that is made at run time would get a slower one.
      PyType_Slot{Py_tp_dealloc, reinterpret_cast<void*>(&deallocate)},
      PyType_Slot{0, nullptr},
  };
  PyType_Spec spec{name_.c_str(), sizeof(Wrapper), 0, Py_TPFLAGS_DEFAULT, slots.data()};
  type_ =
      reinterpret_cast<PyTypeObject*>(PyType_FromSpecWithBases(&spec, reinterpret_cast<PyObject*>(state_.object_type)));
  if (type_ == nullptr) throw py::error_already_set();
}

/// What help(), dir() and completion read. Attribute access itself goes through find(). That the properties are real
/// ones matters: completion does not run them then.
void ClassType::add_members() {
  const py::handle type(reinterpret_cast<PyObject*>(type_));
  const py::handle property(reinterpret_cast<PyObject*>(&PyProperty_Type));
  const py::object getter = py::module_::import("operator").attr("attrgetter");
  for (const Member& member : members_) {
    const MemberInfo& info = *member.info;
    const py::str name(info.name.data(), info.name.size());
    if (member.kind == Member::Kind::Method) {
      py::setattr(type, name, py::reinterpret_steal<py::object>(make_handle(*this, member, nullptr)));
      continue;
    }
    py::object get = py::none();
    py::object set = py::none();
    if (info.gets || member.kind != Member::Kind::Property) get = getter(name);
    if (info.lets || info.sets) {
      set = py::cpp_function(
          [name](const py::object& self, const py::object& value) { py::setattr(self, name, value); }, py::name("set"));
    }
    py::setattr(type, name, property(get, set, py::none(), member_text(info)));
  }
}

void ClassType::add_constructor() {
  const Registry::Class* listed = state_.registry.find(info_.name());
  if (listed == nullptr || &listed->info() != &info_) return;
  const auto create = [this, entry = listed->entry](const py::object&) {
    PyObject* made = guarded(state_, [&] { return wrap(state_, entry->create(state_.platform)); });
    if (made == nullptr) throw py::error_already_set();
    return py::reinterpret_steal<py::object>(made);
  };
  py::options options;
  options.disable_function_signatures();
  py::handle(reinterpret_cast<PyObject*>(type_)).attr("__new__") =
      py::staticmethod(py::cpp_function(create, py::name("__new__"), py::doc("Creates a new object.")));
}

ClassType& class_type(State& state, const ClassInfo& info) {
  auto& known = state.class_types[&info];
  if (!known) known = std::make_unique<ClassType>(state, info);
  return *known;
}

}  // namespace vorlan::python
