// Vorlan.exe: enters the server in the registry, takes it out, or serves. It has no window; texts go to whoever reads
// its output, or to the console that it was started from.
#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <string>
#include <vector>

#include "automation/error.hpp"
#include "platform/windows_text.hpp"
#include "server/classes.hpp"
#include "server/com/apartment.hpp"
#include "server/com/registration.hpp"
#include "server/com/serve.hpp"
#include "simulator/classes.hpp"
#include "simulator/simulated_clock.hpp"

namespace {

using namespace vorlan;

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

constexpr const char* kHelp = VORLAN_VERSION
    ": the automation server of the 1xEV-DO conformance test library.\r\n"
    "\r\n"
    "  /RegServer [/user]    enter its classes in the registry: for everybody (as administrator), or for this user\r\n"
    "  /UnregServer [/user]  take them out again, all that /RegServer entered\r\n"
    "  /Embedding            serve; the system starts the server so by itself\r\n"
    "  /help                 this text\r\n"
    "\r\n"
    "Exit codes: 0; 1 it failed; 2 wrong usage.\r\n";

void say(DWORD where, const std::string& text) {
  HANDLE out = GetStdHandle(where);
  HANDLE console = INVALID_HANDLE_VALUE;
  if (out == nullptr || out == INVALID_HANDLE_VALUE || GetFileType(out) == FILE_TYPE_UNKNOWN) {
    if (AttachConsole(ATTACH_PARENT_PROCESS) == FALSE) return;
    console = CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    out = console;
  }
  DWORD written = 0;
  WriteFile(out, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  if (console != INVALID_HANDLE_VALUE) CloseHandle(console);
}

Registry all_classes() { return Registry(simulator::with_simulator(class_tables())); }

Platform platform_with(std::shared_ptr<Clock> clock) {
  Platform platform = native_platform();
  platform.clock = std::move(clock);
  simulator::offer_simulated_time(platform);
  return platform;
}

std::filesystem::path own_path() {
  std::wstring path(32768, L'\0');  // the longest there is
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

std::vector<std::string> words_given() {
  int count = 0;
  LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> result;
  for (int i = 1; i < count; ++i) result.push_back(narrow_text(words[i]));
  LocalFree(words);
  return result;
}

int run(const std::vector<std::string>& words) {
  const auto is = [&](std::size_t i, std::string_view name) {
    if (words.size() <= i) return false;
    const std::string_view word = words[i];
    const bool is_switch = word.starts_with('/') || word.starts_with('-');
    return is_switch && equals_ignoring_case(word.substr(word.starts_with("--") ? 2 : 1), name);
  };
  const Registry registry = all_classes();
  if (words.size() == 1 && is(0, "Embedding")) {
    com::serve(registry, platform_with);
    return kDone;
  }
  const bool enters = is(0, "RegServer");
  if ((enters || is(0, "UnregServer")) && (words.size() == 1 || (words.size() == 2 && is(1, "user")))) {
    const com::Apartment apartment;
    const com::Registration registration{words.size() == 2 ? com::Scope::User : com::Scope::Machine, own_path()};
    std::string left_out;
    if (enters) {
      for (const std::string& name : com::register_server(registry, registration)) {
        left_out.append("Left to another server, which has the name: ").append(name).append("\r\n");
      }
    } else {
      com::unregister_server(registry, registration);
    }
    if (!left_out.empty()) say(STD_OUTPUT_HANDLE, left_out);
    return kDone;
  }
  if (words.size() == 1 && (is(0, "help") || is(0, "?"))) {
    say(STD_OUTPUT_HANDLE, kHelp);
    return kDone;
  }
  std::string given;
  for (const std::string& word : words) given.append(" ").append(word);
  say(STD_ERROR_HANDLE, (given.empty() ? "Nothing to do" : "Not known:" + given) + "\r\n\r\n" + kHelp);
  return kWrongUsage;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) try { return run(words_given()); } catch (const Error& error) {
  say(STD_ERROR_HANDLE, "Vorlan: " + error.description() + "\r\n");
  return kFailed;
} catch (const std::exception& error) {
  say(STD_ERROR_HANDLE, std::string("Vorlan: ") + error.what() + "\r\n");
  return kFailed;
}
