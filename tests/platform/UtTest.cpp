#include "ut/Assert.h"
#include "ut/MessageCatalogue.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

class UtCatalogue : public ::testing::Test {
protected:
    void TearDown() override { ut::setLanguage("en"); }
};

} // namespace

TEST_F(UtCatalogue, LooksUpByCodeWithFallbackToEnglish)
{
    EXPECT_EQ(ut::language(), "en");
    int const before = ut::registeredTableCount();
    {
        // Tables are copied: these arrays are gone after registration.
        std::vector<int> codes{0x7f0001, 0x7f0002};
        std::vector<std::string> ids{"T_One", "T_Two"};
        std::vector<std::string> en{"one", "two"};
        std::vector<std::string> de{"eins"};
        char const *idPtrs[] = {ids[0].c_str(), ids[1].c_str()};
        char const *enPtrs[] = {en[0].c_str(), en[1].c_str()};
        char const *dePtrs[] = {de[0].c_str(), nullptr};
        ut_message_table primary{2, 0x7f, codes.data(), idPtrs, enPtrs};
        ut_message_table german{2, 0x7f, codes.data(), nullptr, dePtrs};
        EXPECT_TRUE(ut_mem_add_primary_message_table(&primary));
        EXPECT_TRUE(ut_mem_add_language("de", &german));
        EXPECT_FALSE(ut_mem_add_language("de", &german));
        EXPECT_EQ(ut::registeredTableCount(), before + 2);
    }
    EXPECT_EQ(ut::findMessage(0x7f0001)->text, "one");
    ut::setLanguage("de");
    std::optional<ut::Message> one = ut::findMessage(0x7f0001);
    ASSERT_TRUE(one);
    EXPECT_EQ(one->id, "T_One");
    EXPECT_EQ(one->text, "eins");
    EXPECT_EQ(one->language, "de");
    std::optional<ut::Message> two = ut::findMessage(0x7f0002);
    ASSERT_TRUE(two);
    EXPECT_EQ(two->text, "two");
    EXPECT_EQ(two->language, "en");
    EXPECT_FALSE(ut::findMessage(0x7f0003));
    EXPECT_FALSE(ut_mem_add_primary_message_table(nullptr));
}

namespace {
std::vector<std::string> g_reported;
void recordingHandler(char const *condition, char const *file, int line)
{
    g_reported.push_back(std::string(condition) + "@" + file + ":" + std::to_string(line));
}
} // namespace

TEST(UtAssert, ReportsConditionFileAndLineToTheHandlerThenThrows)
{
    int const two = 2;
    int line = 0;
    try {
        line = __LINE__ + 1;
        ut_assert(two + 2 == 5);
        FAIL() << "no throw";
    } catch (ut::AssertionError const &e) {
        EXPECT_EQ(e.condition(), "two + 2 == 5");
        EXPECT_EQ(e.file(), __FILE__);
        EXPECT_EQ(e.line(), line);
        EXPECT_EQ(std::string(e.what()),
                  "Assertion failed: two + 2 == 5 (" + std::string(__FILE__) + ":" + std::to_string(line) + ")");
    }
    ut_assert(two == 2); // holds: nothing happens

    EXPECT_THROW(ut_assert_text(false, "explicit text", "some/file.cpp", 12), std::logic_error);
    EXPECT_NO_THROW(ut_assert_text(true, "explicit text", "some/file.cpp", 12));

    g_reported.clear();
    ut::AssertHandler previous = ut::setAssertHandler(&recordingHandler);
    EXPECT_EQ(previous, nullptr);
    EXPECT_THROW(ut_assert_text(false, "x > 0", "a.cpp", 7), ut::AssertionError);
    EXPECT_EQ(ut::setAssertHandler(previous), &recordingHandler);
    EXPECT_THROW(ut_assert_text(false, "y > 0", "b.cpp", 8), ut::AssertionError);
    EXPECT_EQ(g_reported, (std::vector<std::string>{"x > 0@a.cpp:7"}));
}
