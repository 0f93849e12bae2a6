#include "server/classes.hpp"

#include <array>

#include "attributes/classes.hpp"
#include "attributes/negotiation/classes.hpp"
#include "common/classes.hpp"
#include "messages/classes.hpp"
#include "parameters/classes.hpp"
#include "sector/classes.hpp"
#include "security/classes.hpp"

namespace vorlan {

std::span<const ClassTable> class_tables() {
  static const std::array kTables{
      ClassTable{"Vorlan", common_classes()},
      ClassTable{"Vorlan", parameter_classes()},
      ClassTable{"Vorlan", security_message_classes()},
      ClassTable{"Vorlan", session_message_classes()},
      ClassTable{"Vorlan", connection_message_classes()},
      ClassTable{"Vorlan", mac_message_classes()},
      ClassTable{"Vorlan", application_message_classes()},
      ClassTable{"Vorlan", stream_message_classes()},
      ClassTable{"Vorlan", testapp_message_classes()},
      ClassTable{"Vorlan", simple_attribute_classes()},
      ClassTable{"Vorlan", complex_attribute_classes()},
      ClassTable{"Vorlan", value_classes()},
      ClassTable{"Vorlan", negotiation_classes()},
      ClassTable{"Vorlan", sector_classes()},
      ClassTable{"Vorlan", security_classes()},
      ClassTable{"ReadINI", parameter_file_classes()},
  };
  return kTables;
}

}  // namespace vorlan
