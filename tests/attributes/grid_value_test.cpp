// Value records with axes, and those that belong to a flow.
#include <gtest/gtest.h>

#include "attributes/bits.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

constexpr std::string_view kTransition = "SB_Mac_ValT2PTransitionFunctionNN";
constexpr std::string_view kBucket = "SB_Mac_ValBucketFactorNN";

/// The value at a place of a grid, other for each place and grid.
std::string cell(int grid, int t2p, int frab) {
  return bits_of(static_cast<std::size_t>(grid * 64 + t2p * 4 + frab), 8);
}
std::string t2p_axis(int i) { return bits_of(static_cast<std::size_t>(i + 100), 8); }
std::string frab_axis(int i) { return bits_of(static_cast<std::size_t>(i + 8), 4); }

/// The record of a grid that is filled so.
std::string record_of(int t2p, int frab) {
  std::string record =
      "00000111" + bits_of(static_cast<std::size_t>(t2p), 4) + bits_of(static_cast<std::size_t>(frab), 3);
  for (int i = 0; i < t2p; ++i) record += t2p_axis(i);
  for (int j = 0; j < frab; ++j) record += frab_axis(j);
  for (const int grid : {1, 2}) {
    for (int i = 0; i < t2p; ++i) {
      for (int j = 0; j < frab; ++j) record += cell(grid, i, j);
    }
  }
  return filled_up(record);
}

TEST(Value, T2PTransitionFunctionIsAGrid) {
  const Ref<Object> by_property = create(kTransition), by_index = create(kTransition), receiver = create(kTransition);
  for (const Ref<Object>& object : {by_property, by_index}) {
    object->let("PRstr_ValueId", "00000111");
    object->let("PRstr_NumT2PAxisValues", "0100");
    object->let("PRstr_NumFRABAxisValues", "100");
  }
  for (int i = 0; i < 4; ++i) {
    const std::string digit = std::to_string(i);
    by_property->let("PRstr_T2PAxis0" + digit, t2p_axis(i));
    by_property->let("PRstr_FRABAxis" + digit, frab_axis(i));
    by_index->call("Set_T2PAxis", i, t2p_axis(i));
    by_index->call("Set_FRABAxis", i, frab_axis(i));
    for (int j = 0; j < 4; ++j) {
      const std::string place = "T2PAxis0" + digit + "FRABAxis" + std::to_string(j);
      by_property->let("PRstr_T2PUp" + place, cell(1, i, j));
      by_property->let("PRstr_T2PDn" + place, cell(2, i, j));
      by_index->call("Set_T2PUpT2PAxisFRABAxis", i, j, cell(1, i, j));
      by_index->call("Set_T2PDnT2PAxisFRABAxis", i, j, cell(2, i, j));
      EXPECT_EQ(by_property->call("Get_T2PUpT2PAxisFRABAxis", i, j).to_text(), cell(1, i, j));
    }
  }
  ASSERT_EQ(record_of(4, 4).size(), 320U);
  EXPECT_EQ(by_property->call("BuildValueRecord").to_text(), record_of(4, 4));
  EXPECT_EQ(by_index->call("BuildValueRecord").to_text(), record_of(4, 4));

  receiver->let("PRstr_ValString", record_of(4, 4));
  EXPECT_EQ(receiver->get("PRstr_T2PUpT2PAxis03FRABAxis2").to_text(), cell(1, 3, 2));
  EXPECT_EQ(receiver->call("Get_T2PDnT2PAxisFRABAxis", 2, 3).to_text(), cell(2, 2, 3));
  EXPECT_EQ(receiver->call("Get_FRABAxis", 3).to_text(), "1011");

  // Two T2P and three FRAB values of what is set: rows keep their places, the others stay behind.
  by_index->let("PRstr_NumT2PAxisValues", "0010");
  by_index->let("PRstr_NumFRABAxisValues", "011");
  EXPECT_EQ(by_index->call("BuildValueRecord").to_text(), record_of(2, 3));
  receiver->let("PRstr_ValString", record_of(2, 3));
  EXPECT_EQ(receiver->get("PRstr_T2PDnT2PAxis01FRABAxis2").to_text(), cell(2, 1, 2));
  EXPECT_EQ(error_number([&] { receiver->get("PRstr_T2PDnT2PAxis02FRABAxis0"); }), 9) << "not in what was received";
  for (const auto& [t2p, frab] : {std::pair{2, 0}, {0, 3}}) {
    EXPECT_EQ(raised_by([&, i = t2p, j = frab] { receiver->call("Get_T2PDnT2PAxisFRABAxis", i, j); }).source,
              "SB_Mac_ValT2PTransitionFunctionNN.Get_T2PDnT2PAxisFRABAxis");
  }
  receiver->call("Set_T2PAxis", 3, "11111111");  // to be sent
}

TEST(Value, IndicesOutsideTheGridAreRefused) {
  const auto refused = [](std::string_view name, std::string_view member, Access access, std::vector<Value> arguments) {
    const Ref<Object> object = create(name);
    const std::string before = object->call("BuildValueRecord").to_text();
    EXPECT_EQ(raised_by([&] { object->invoke(member, access, arguments); }),
              (Raised{9, std::string(name).append(".").append(member), "Subscript out of range"}));
    EXPECT_EQ(object->call("BuildValueRecord").to_text(), before);
  };
  for (const std::string_view name : {kTransition, kBucket}) {
    for (const int outside : {-1, 4, 32767}) {
      refused(name, "Get_T2PAxis", Access::Call, {outside});
      refused(name, "Set_FRABAxis", Access::Call, {outside, "0000"});
    }
    refused(name, "PRstr_NumT2PAxisValues", Access::Let, {"0101"});
    refused(name, "PRstr_NumFRABAxisValues", Access::Let, {"101"});
  }
  for (const auto& [t2p, frab] : {std::pair{4, 0}, {0, 4}, {-1, 0}, {0, -1}}) {
    refused(kTransition, "Set_T2PDnT2PAxisFRABAxis", Access::Call, {t2p, frab, "00000000"});
    refused(kBucket, "Get_BucketFactorT2PAxisFRABAxis", Access::Call, {t2p, frab});
  }
  const Ref<Object> transition = create(kTransition), bucket = create(kBucket);
  EXPECT_EQ(raised_by([&] { bucket->call("Set_T2PAxis", 0, "0000"); }),
            (Raised{1, "SB_Mac_ValBucketFactorNN.Set_T2PAxis", "Length of <T2PAxis> field should be 8 bits."}));
  EXPECT_EQ(raised_by([&] { transition->call("Set_T2PAxis", 2, "0000"); }),
            (Raised{1, "SB_Mac_ValT2PTransitionFunctionNN.PRstr_T2PAxis02",
                    "Length of <T2PAxis02> field should be 8 bits."}));
  bucket->call("Set_BucketFactorT2PAxisFRABAxis", 0, 0, "11111111");
  EXPECT_EQ(bucket->call("BuildValueRecord").to_text(), bits_of("00 12 00 1F E0"));
}

TEST(Value, FlowIsANumberToo) {
  for (const std::string_view name : {kTransition, kBucket, std::string_view("SB_Mac_ValT2PInflowRangeNN")}) {
    const Ref<Object> value = create(name);
    const std::string before = value->call("BuildValueRecord").to_text();
    value->let("PRint_FlowNN", 200);
    EXPECT_EQ(value->get("PRstr_FlowNN").to_text(), "11001000");
    for (const int wrong : {-1, 256}) EXPECT_EQ(error_number([&] { value->let("PRint_FlowNN", wrong); }), 5);
    EXPECT_EQ(value->get("PRint_FlowNN").to_integer(), 200);
    EXPECT_EQ(value->call("BuildValueRecord").to_text(), before) << "the flow is in the AttributeID";
  }
}

}  // namespace
}  // namespace vorlan::test
