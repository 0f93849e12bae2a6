#include "simulator/test_report.hpp"

namespace vorlan::simulator {

namespace {

constexpr std::size_t kCapacity = 1000;

constexpr BoundMember kMembers[] = {
    method<&TestReport::add_text>("AddText", "Text", "Adds a line."),
    property<&TestReport::count>("Count", "How many lines there are."),
    property<&TestReport::line>("Line", "One line, from 0 on.", "Index"),
    property<&TestReport::text>("Text", "All lines, each with a newline."),
    method<&TestReport::clear>("Clear", "", "Drops all lines."),
};

}  // namespace

std::span<const BoundMember> TestReport::members() { return kMembers; }

void TestReport::add_text(const std::string& text) {
  if (lines_.size() == kCapacity) lines_.pop_front();
  lines_.push_back(text);
}

std::string TestReport::line(std::int16_t index) const {
  if (index < 0 || index >= count()) throw Error(ErrorNumber::SubscriptOutOfRange);
  return lines_[static_cast<std::size_t>(index)];
}

std::string TestReport::text() const {
  std::string all;
  for (const std::string& line : lines_) all.append(line).append("\n");
  return all;
}

}  // namespace vorlan::simulator
