#include "masters/unit_master.h"
#include "masters_fixture.h"
#include "support/test_server.h"

namespace {
class UnitMaster : public MastersTest {
  protected:
    void SetUp() override {
        MastersTest::SetUp();
        store().run("DELETE FROM tblUnitMaster");
        for (const char* code : {"BOX", "PC", "PCS"}) AddUnitCode(store(), code);
    }
};

TEST_F(UnitMaster, APrefixCompletesToTheFirstUnit) {
    struct Row {
        const char* typed;
        std::optional<QString> code;
    };
    const Row rows[] = {{"", ""},       {"  ", ""},      {"b", "BOX"},        {"pc", "PC"},
                        {"pcs", "PCS"}, {"PCS ", "PCS"}, {"x", std::nullopt}, {"PCSS", std::nullopt}};
    for (const Row& row : rows) EXPECT_EQ(MatchUnitCode(store(), row.typed), row.code) << row.typed;
}

TEST_F(UnitMaster, AUnitIsAddedOnce) {
    EXPECT_EQ(AddUnitCode(store(), " doz "), "DOZ");
    EXPECT_EQ(AddUnitCode(store(), "DOZ"), "DOZ");
    EXPECT_EQ(UnitCodes(store()), (QStringList{"BOX", "DOZ", "PC", "PCS"}));
}

TEST_F(UnitMaster, SavingChecksInOrder) {
    const auto saved = [&](const char* typed) { return faultOf(SaveUnit(store(), typed, true, {})).text; };
    EXPECT_EQ(saved(""), "Unit Should Not Be Blank!");
    EXPECT_EQ(saved("1234567890123456"), "Please Enter Not More Than 15 Characters!");
    EXPECT_EQ(saved("pcs"), "System Cannot Accept Duplicate Unit!");
    EXPECT_EQ(saved("123456789012345   "), "");
    EXPECT_EQ(saved("kilo "), "");
    EXPECT_EQ(UnitCodes(store()), (QStringList{"123456789012345", "BOX", "KILO", "PC", "PCS"}));
}

TEST_F(UnitMaster, ARenamedUnitLeavesTheItemsAlone) {
    addItem("1000000001", "NAIL");
    EXPECT_EQ(faultOf(SaveUnit(store(), "box", false, "PC")).text, "System Cannot Accept Duplicate Unit!");
    EXPECT_TRUE(isDone(SaveUnit(store(), "pc", false, "PC"))) << "it is its own";
    EXPECT_TRUE(isDone(SaveUnit(store(), "piece", false, "PC")));
    EXPECT_EQ(UnitCodes(store()), (QStringList{"BOX", "PCS", "PIECE"}));
    EXPECT_EQ(one("SELECT Unit FROM tblItemMaster").text("Unit"), "PC");
}

TEST_F(UnitMaster, AUnitThatHasGoneIsToldAndOtherRefusalsArePassedOver) {
    EXPECT_EQ(faultOf(SaveUnit(store(), "NEW", false, "GONE")).focus, "txtUnit");
    refuseWrites(store(), "UPDATE ON tblUnitMaster");
    EXPECT_TRUE(isDone(SaveUnit(store(), "NEW", false, "PC")));
    EXPECT_EQ(UnitCodes(store()), (QStringList{"BOX", "PC", "PCS"}));
}
}  // namespace
