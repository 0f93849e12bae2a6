// The command line: reads the arguments, runs a command, and makes an exit code of what went wrong: 1 for an automation
// error, 2 for wrong usage.
#include <cstdio>
#include <functional>

#include "CLI/CLI.hpp"
#include "automation/error.hpp"
#include "cli/commands.hpp"
#include "cli/field_value.hpp"
#include "nlohmann/json.hpp"
#include "server/classes.hpp"
#include "simulator/classes.hpp"

namespace {

using namespace vorlan;

constexpr int kAutomationError = 1;
constexpr int kWrongUsage = 2;

void report(const Error& error, bool json) {
  if (json) {
    const nlohmann::ordered_json object{
        {"error", {{"number", error.number()}, {"source", error.source()}, {"description", error.description()}}}};
    std::fprintf(stderr, "%s\n", object.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace).c_str());
    return;
  }
  std::fprintf(stderr, "vorlan: error %d%s%s: %s\n", error.number(), error.source().empty() ? "" : " in ",
               error.source().c_str(), error.description().c_str());
}

/// The options of all commands, and the commands themselves.
struct CommandLine {
  CommandLine() {
    app.require_subcommand(1);
    app.set_version_flag("--version", VORLAN_VERSION);
    app.footer("Exit codes: 0; 1 an automation error (number, source, description); 2 wrong usage.");

    classes->add_option("PATTERN", name, "a name or part of it, with * and ? as in a shell");
    describe->add_option("CLASS", name, "the class, in upper or lower case")->required();

    encode->add_option("CLASS", encoding.class_name, "the class of the message, attribute or value")->required();
    encode->add_option("FIELD=VALUE", encoding.assignments,
                       "fields, and optional arguments of CreateMessage;\nFIELD[i]=VALUE for one of a list");
    CLI::Option* config =
        encode
            ->add_option("--config", encoding.parameter_file,
                         "parameter file of the sector whose values are sent;\nonly for messages that take any")
            ->type_name("FILE");
    encode->add_option("--sector", encoding.sector, "the sector's section in that file (default: SECTOR 0)")
        ->type_name("NAME")
        ->needs(config);
    encode->footer(
        "A field's name may go without its PRstr_. Counts are set before their lists, however they are typed.\n\n" +
        std::string(cli::kValueRule));

    decode
        ->add_option(
            "CLASS HEX", words,
            "the class of the message, attribute or value (not with --protocol,\nunless it carries attributes); "
            "octets in hexadecimal, in one or several words;\nand PROPERTY=VALUE for a property that selects a "
            "layout, such as PRint_NakType=1")
        ->required();
    decode
        ->add_option(
            "--protocol,--layer", where,
            "find the class by MessageID: a protocol's name or type number, or a layer;\nfor a class that carries "
            "attributes: the protocol that they are of")
        ->type_name("NAME");
    decode->footer(cli::protocol_list());
    ladder->add_option("FILE", name, "a trace that Trace.WriteJsonLines has written")->required();
    for (CLI::App* command : {classes, describe, encode, decode}) {
      command->add_flag("--json", json, "print JSON; an automation error is JSON, too");
    }
#ifdef VORLAN_DBUS
    serving = cli::add_serve(app);
#endif
  }

  void run() {
    const Registry registry(simulator::with_simulator(class_tables()));
    if (classes->parsed()) cli::list_classes(registry, name, json);
    if (describe->parsed()) cli::describe_class(registry, name, json);
    if (encode->parsed()) cli::encode(registry, encoding, json);
    if (decode->parsed()) cli::decode(registry, where, words, json);
    if (ladder->parsed()) cli::ladder(registry, name);
    if (serving) serving(registry);
  }

  CLI::App app{"Messages of the 1xEV-DO air interface: lists, describes, builds and takes them apart.", "vorlan"};
  CLI::App* classes = app.add_subcommand("classes", "List the classes that scripts can create");
  CLI::App* describe = app.add_subcommand("describe", "Show a class: fields, properties, methods, errors");
  CLI::App* encode = app.add_subcommand("encode", "Build a message, attribute or value; show its octets and fields");
  CLI::App* decode = app.add_subcommand("decode", "Take a received message, attribute or value apart");
  CLI::App* ladder = app.add_subcommand("ladder", "Print a simulated test set's trace as a ladder");
  bool json = false;
  std::string name;
  std::string where;
  std::vector<std::string> words;
  cli::EncodeOptions encoding;
  std::function<void(const Registry&)> serving;  ///< empty where there is no server
};

int refuse_usage(const std::string& text) {
  std::fprintf(stderr, "vorlan: %s\nRun with --help for more information.\n", text.c_str());
  return kWrongUsage;
}

/// Nobody may take half an output for the whole of it.
int finish() {
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return 0;
  std::fprintf(stderr, "vorlan: the output could not be written\n");
  return kAutomationError;
}

}  // namespace

int main(int argc, char** argv) try {
  CommandLine line;
  try {
    line.app.parse(argc, argv);
    line.run();
    return finish();
  } catch (const CLI::RequiredError& error) {
    const auto unknown = line.app.remaining();
    if (unknown.empty()) return refuse_usage(error.what());
    const bool is_option = unknown.front().starts_with('-');
    return refuse_usage("\"" + unknown.front() + "\" is no " + (is_option ? "option" : "command"));
  } catch (const CLI::ParseError& error) {
    return error.get_exit_code() == 0 ? line.app.exit(error) + finish() : refuse_usage(error.what());
  } catch (const cli::UsageError& error) {
    return refuse_usage(error.what());
  } catch (const Error& error) {
    report(error, line.json);
    return kAutomationError;
  }
} catch (const std::exception& error) {
  std::fprintf(stderr, "vorlan: %s\n", error.what());
  return kAutomationError;
}
