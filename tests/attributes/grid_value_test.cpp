// Value records with axes, and those that belong to a flow.
#include <gtest/gtest.h>

#include "common/conversions.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

std::string number(std::size_t value, std::size_t bits) {
  return long_to_bin(static_cast<std::int32_t>(value), static_cast<int>(bits));
}

/// The value at a place of a grid, other for each place and grid.
std::string cell(std::size_t grid, std::size_t t2p, std::size_t frab) { return number(grid * 64 + t2p * 4 + frab, 8); }

TEST(Value, T2PTransitionFunctionIsAGrid) {
  const Ref<Object> by_property = create("SB_Mac_ValT2PTransitionFunctionNN");
  const Ref<Object> by_index = create("SB_Mac_ValT2PTransitionFunctionNN");
  std::string record =
      "00000111"
      "0100"
      "100";
  for (const Ref<Object>& object : {by_property, by_index}) {
    object->let("PRstr_ValueId", "00000111");
    object->let("PRstr_NumT2PAxisValues", "0100");
    object->let("PRstr_NumFRABAxisValues", "100");
  }
  std::string frab, up, down;
  for (std::int32_t i = 0; i < 4; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const std::string digit = std::to_string(i);
    by_property->let("PRstr_T2PAxis0" + digit, number(at + 100, 8));
    by_property->let("PRstr_FRABAxis" + digit, number(at + 8, 4));
    by_index->call("Set_T2PAxis", i, number(at + 100, 8));
    by_index->call("Set_FRABAxis", i, number(at + 8, 4));
    record += number(at + 100, 8);
    frab += number(at + 8, 4);
    for (std::int32_t j = 0; j < 4; ++j) {
      const std::string place = "T2PAxis0" + digit + "FRABAxis" + std::to_string(j);
      const std::string in_up = cell(1, at, static_cast<std::size_t>(j)),
                        in_down = cell(2, at, static_cast<std::size_t>(j));
      by_property->let("PRstr_T2PUp" + place, in_up);
      by_property->let("PRstr_T2PDn" + place, in_down);
      by_index->call("Set_T2PUpT2PAxisFRABAxis", i, j, in_up);
      by_index->call("Set_T2PDnT2PAxisFRABAxis", i, j, in_down);
      EXPECT_EQ(by_property->call("Get_T2PUpT2PAxisFRABAxis", i, j).to_text(), in_up);
      up += in_up;
      down += in_down;
    }
  }
  record += frab + up + down + "0";
  ASSERT_EQ(record.size(), 320U);
  EXPECT_EQ(by_property->call("BuildValueRecord").to_text(), record);
  EXPECT_EQ(by_index->call("BuildValueRecord").to_text(), record);

  const Ref<Object> receiver = create("SB_Mac_ValT2PTransitionFunctionNN");
  receiver->let("PRstr_ValString", record);
  EXPECT_EQ(receiver->get("PRstr_T2PUpT2PAxis03FRABAxis2").to_text(), cell(1, 3, 2));
  EXPECT_EQ(receiver->call("Get_T2PDnT2PAxisFRABAxis", std::int32_t{2}, std::int32_t{3}).to_text(), cell(2, 2, 3));
  EXPECT_EQ(receiver->call("Get_FRABAxis", std::int32_t{3}).to_text(), "1011");

  // Two T2P and three FRAB values of what is set: rows keep their places, the others stay behind.
  by_index->let("PRstr_NumT2PAxisValues", "0010");
  by_index->let("PRstr_NumFRABAxisValues", "011");
  std::string part =
      "00000111"
      "0010"
      "011" +
      number(100, 8) + number(101, 8) + frab.substr(0, 12);
  for (const std::size_t grid : {1U, 2U}) {
    for (const std::size_t t2p : {0U, 1U}) {
      for (const std::size_t column : {0U, 1U, 2U}) part += cell(grid, t2p, column);
    }
  }
  part.append((8 - part.size() % 8) % 8, '0');
  EXPECT_EQ(by_index->call("BuildValueRecord").to_text(), part);
  receiver->let("PRstr_ValString", part);
  EXPECT_EQ(receiver->get("PRstr_T2PDnT2PAxis01FRABAxis2").to_text(), cell(2, 1, 2));
  EXPECT_EQ(error_number([&] { receiver->get("PRstr_T2PDnT2PAxis02FRABAxis0"); }), 9) << "not in what was received";
}

TEST(Value, IndicesOutsideTheGridAreRefused) {
  const Ref<Object> transition = create("SB_Mac_ValT2PTransitionFunctionNN");
  const Ref<Object> bucket = create("SB_Mac_ValBucketFactorNN");
  const auto refused = [](const Ref<Object>& object, auto&& use) {
    const std::string before = object->call("BuildValueRecord").to_text();
    EXPECT_EQ(error_number([&] { use(*object); }), 9);
    EXPECT_EQ(object->call("BuildValueRecord").to_text(), before);
  };
  for (const Ref<Object>& object : {transition, bucket}) {
    for (const std::int32_t outside : {-1, 4, 32767}) {
      refused(object, [&](Object& o) { o.call("Get_T2PAxis", outside); });
      refused(object, [&](Object& o) { o.call("Set_FRABAxis", outside, "0000"); });
    }
    refused(object, [](Object& o) { o.let("PRstr_NumT2PAxisValues", "0101"); });
    refused(object, [](Object& o) { o.let("PRstr_NumFRABAxisValues", "101"); });
  }
  for (const auto& [t2p, frab] : {std::pair{4, 0}, {0, 4}, {-1, 0}, {0, -1}}) {
    refused(transition, [&, t = t2p, f = frab](Object& o) { o.call("Set_T2PDnT2PAxisFRABAxis", t, f, "00000000"); });
    refused(bucket, [&, t = t2p, f = frab](Object& o) { o.call("Get_BucketFactorT2PAxisFRABAxis", t, f); });
  }
  EXPECT_EQ(raised_by([&] { bucket->call("Set_T2PAxis", std::int32_t{0}, "0000"); }),
            (Raised{1, "SB_Mac_ValBucketFactorNN.Set_T2PAxis", "Length of <T2PAxis> field should be 8 bits."}));
  EXPECT_EQ(raised_by([&] { transition->call("Set_T2PAxis", std::int32_t{2}, "0000"); }),
            (Raised{1, "SB_Mac_ValT2PTransitionFunctionNN.PRstr_T2PAxis02",
                    "Length of <T2PAxis02> field should be 8 bits."}));
  EXPECT_EQ(raised_by([&] { transition->call("Get_T2PAxis", std::int32_t{-1}); }).source,
            "SB_Mac_ValT2PTransitionFunctionNN.PRstr_T2PAxis-1");
  bucket->call("Set_BucketFactorT2PAxisFRABAxis", std::int32_t{0}, std::int32_t{0}, "11111111");
  EXPECT_EQ(bucket->call("BuildValueRecord").to_text(), bits_of("00 12 00 1F E0"));
}

TEST(Value, FlowIsANumberToo) {
  for (const std::string_view name :
       {"SB_Mac_ValT2PTransitionFunctionNN", "SB_Mac_ValBucketFactorNN", "SB_Mac_ValT2PInflowRangeNN"}) {
    const Ref<Object> value = create(name);
    const std::string before = value->call("BuildValueRecord").to_text();
    value->let("PRint_FlowNN", std::int32_t{200});
    EXPECT_EQ(value->get("PRstr_FlowNN").to_text(), "11001000");
    for (const std::int32_t wrong : {-1, 256}) EXPECT_EQ(error_number([&] { value->let("PRint_FlowNN", wrong); }), 5);
    EXPECT_EQ(value->get("PRint_FlowNN").to_integer(), 200);
    EXPECT_EQ(value->call("BuildValueRecord").to_text(), before) << "the flow is in the AttributeID";
  }
}

}  // namespace
}  // namespace vorlan::test
