// An object of another automation server, or a script's own, as the library sees it.
#pragma once

#include <array>
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
///
/// A peer may know only one of several kinds of access that mean the same to a client, and may refuse references. It is
/// asked again in the other way then, but only the first time: once it has been seen to do what a member is for, the
/// way is settled, since a peer that acts and then refuses must not act twice.
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
    DISPID id = DISPID_UNKNOWN;
    bool extended = false;  ///< found, and to be called, through IDispatchEx
    // What is settled of it:
    std::array<std::optional<int>, 4> kind{};  ///< for each Access, which of its kinds
    std::optional<int> indexed_get{};          ///< the same for Get with arguments
    std::optional<bool> by_reference{};        ///< how arguments travel
    bool operator==(const Member&) const = default;
  };
  using Kinds = std::array<WORD, 2>;

  Member find(std::string_view name);
  HRESULT ask_for(const std::wstring& name, Member& member);
  ComPointer<IDispatchEx> extended() const;
  void settle(std::string_view name, const Member& member);
  HRESULT call(const Member& member, WORD kind, DISPPARAMS& parameters, Variant& result, EXCEPINFO& information,
               UINT& bad_argument);
  HRESULT try_kinds(Member& member, Access access, DISPPARAMS& parameters, Variant& result, EXCEPINFO& information,
                    UINT& bad_argument);
  bool takes_references() {
    const std::scoped_lock guard(mutex_);
    return takes_references_;
  }

  ComPointer<IDispatch> dispatch_;
  Objects& objects_;
  std::mutex mutex_;
  std::map<std::string, Member, std::less<>> members_;
  bool takes_references_ = false;  ///< some member has
};

/// What stands for an object outside; error 13 if it is none of automation's.
Ref<Object> foreign_object_of(IUnknown& unknown, Objects& objects);

/// Creates an object of another server. Nothing if no other server than this one offers it to this process; error 429
/// if the one that does fails.
Ref<Object> create_foreign_object(std::string_view prog_id, Objects& objects);

}  // namespace vorlan::com
