// An object of another automation server, or a script's own, as the library sees it.
#pragma once

#include <map>
#include <mutex>
#include <optional>
#include <string>

#include "automation/object.hpp"
#include "server/com/com_pointer.hpp"
#include "server/com/variant.hpp"

struct IDispatchEx;

namespace vorlan::com {

/// Members are called by name; their numbers are asked for once. Arguments of a call travel by reference. Whatever
/// goes outside leaves the caller's turn to others meanwhile.
class ForeignObject final : public Object {
 public:
  ForeignObject(ComPointer<IDispatch> dispatch, Objects& objects) noexcept;
  ~ForeignObject() override;

  [[nodiscard]] IDispatch* dispatch() const noexcept { return dispatch_.get(); }
  Value invoke(std::string_view member, Access access, std::span<Value> arguments) override;
  /// The value of the default property; none if there is no such property.
  std::optional<Value> default_value();

 private:
  struct Member {
    DISPID id;
    bool extended;  ///< found, and to be called, through IDispatchEx
  };

  Member find(std::string_view name);
  HRESULT ask_for(const std::wstring& name, Member& member);
  ComPointer<IDispatchEx> extended() const;
  HRESULT call(const Member& member, WORD kind, DISPPARAMS& parameters, Variant& result, EXCEPINFO& information);
  HRESULT try_kinds(const Member& member, Access access, DISPPARAMS& parameters, Variant& result,
                    EXCEPINFO& information);

  ComPointer<IDispatch> dispatch_;
  Objects& objects_;
  std::mutex mutex_;
  std::map<std::string, Member, std::less<>> members_;
};

/// What stands for an object outside; error 13 if it is none of automation's.
Ref<Object> foreign_object_of(IUnknown& unknown, Objects& objects);

/// Creates an object of another server. Nothing if no other server than this one offers it to this process; error 429
/// if the one that does fails.
Ref<Object> create_foreign_object(std::string_view prog_id, Objects& objects);

}  // namespace vorlan::com
