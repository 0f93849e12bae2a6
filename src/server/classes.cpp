#include "server/classes.hpp"

#include <array>

#include "attributes/classes.hpp"
#include "common/classes.hpp"
#include "messages/classes.hpp"
#include "parameters/classes.hpp"

namespace vorlan {

std::span<const ClassTable> class_tables() {
  static const std::array kTables{
      ClassTable{"Vorlan", common_classes()},           ClassTable{"Vorlan", parameter_classes()},
      ClassTable{"Vorlan", session_message_classes()},  ClassTable{"Vorlan", connection_message_classes()},
      ClassTable{"Vorlan", mac_message_classes()},      ClassTable{"Vorlan", application_message_classes()},
      ClassTable{"Vorlan", stream_message_classes()},   ClassTable{"Vorlan", testapp_message_classes()},
      ClassTable{"Vorlan", simple_attribute_classes()}, ClassTable{"ReadINI", parameter_file_classes()},
  };
  return kTables;
}

}  // namespace vorlan
