#include "Error"
#include "binding/ErrorCatalogue.h"
#include "ut/MessageCatalogue.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

using namespace VOR2;

namespace {

// Leaves the catalogue language as every other test expects it.
class ErrorCatalogueTest : public ::testing::Test {
protected:
    void TearDown() override { ut::setLanguage("en"); }
};

Error caught(message_code_vor_msg code, std::string const *arg = nullptr)
{
    try {
        if (arg)
            throwError(code, *arg);
        else
            throwError(code);
    } catch (Error const &e) {
        return e;
    }
    ADD_FAILURE() << "throwError returned";
    return Error(code, std::string());
}

int placeholders(std::string const &text, char const *token)
{
    int n = 0;
    for (auto at = text.find(token); at != std::string::npos; at = text.find(token, at + 2)) ++n;
    return n;
}

} // namespace

TEST_F(ErrorCatalogueTest, CodesAreContiguousAndEveryEntryIsThrownInEachLanguage)
{
    std::set<std::string> ids;
    int expected = 0x6b0001;
    for (ErrorCatalogueEntry const &entry : errorCatalogue()) {
        EXPECT_EQ(int(entry.code), expected++);
        EXPECT_EQ(findErrorCatalogueEntry(entry.code), &entry);
        ASSERT_TRUE(entry.id && entry.english && entry.japanese);
        EXPECT_EQ(std::string(entry.id).rfind("VOR2_", 0), 0u) << entry.id;
        EXPECT_TRUE(ids.insert(entry.id).second) << entry.id;
        EXPECT_STRNE(entry.english, "");
        EXPECT_STRNE(entry.japanese, "");
        EXPECT_STRNE(entry.english, entry.japanese);
        // Each language keeps its own placeholder, one for one.
        EXPECT_EQ(placeholders(entry.english, "%1"), 0) << entry.id;
        EXPECT_EQ(placeholders(entry.japanese, "%s"), 0) << entry.id;
        EXPECT_EQ(placeholders(entry.english, "%s"), placeholders(entry.japanese, "%1")) << entry.id;
        // What is thrown comes from the registered tables; a language
        // without texts falls back to English.
        Error e = caught(entry.code);
        EXPECT_EQ(e.code(), entry.code);
        EXPECT_EQ(e.catalogueId(), entry.id);
        EXPECT_EQ("VOR2:" + std::string(entry.id + 5), e.id());
        EXPECT_STREQ(e.what(), entry.english);
        for (auto const &[language, text] : {std::pair{"ja", entry.japanese}, std::pair{"fr", entry.english}}) {
            ut::setLanguage(language);
            EXPECT_EQ(caught(entry.code).text(), text) << language << " " << entry.id;
            EXPECT_EQ(caught(entry.code).id(), e.id());
        }
        ut::setLanguage("en");
    }
    EXPECT_EQ(expected, 0x6b001f);
    EXPECT_EQ(findErrorCatalogueEntry(0x6b0000), nullptr);
    EXPECT_EQ(findErrorCatalogueEntry(0x6b001f), nullptr);
    EXPECT_EQ(findErrorCatalogueEntry(0x6c0001), nullptr);
    EXPECT_EQ(primaryErrorTable().facility, 0x6b);
    EXPECT_EQ(japaneseErrorTable().count, 30);
}

// Spot texts keep the codes and the texts of both tables aligned.
TEST_F(ErrorCatalogueTest, TextsAndThePlaceholderInBothLanguages)
{
    EXPECT_EQ(caught(VOR2_InvalidNode).text(), "Invalid node");
    std::string const names = "\"Inner\", \"Center\", \"Outer\"";
    EXPECT_EQ(caught(VOR2_ExpectedEnumValue, &names).text(),
              "Expected one of the following values: \"Inner\", \"Center\", \"Outer\"");
    std::string const rule = "Snap";
    EXPECT_EQ(caught(VOR2_NoRule, &rule).text(), "No rule of type Snap is registered.");
    // An argument that holds a placeholder is not expanded again.
    std::string const tricky = "%s%1";
    EXPECT_EQ(caught(VOR2_NoRule, &tricky).text(), "No rule of type %s%1 is registered.");
    // Without an argument the text stands as in the catalogue.
    EXPECT_EQ(caught(VOR2_NoRule).text(), "No rule of type %s is registered.");

    ut::setLanguage("ja");
    EXPECT_EQ(caught(VOR2_InvalidNode).text(), "無効なノード");
    EXPECT_EQ(caught(VOR2_NoRule, &rule).text(), "登録されているタイプ Snap の規則はありません。");
}

TEST_F(ErrorCatalogueTest, RegisteringTwiceRegistersOnce)
{
    registerErrorCatalogue();
    int const tables = ut::registeredTableCount();
    registerErrorCatalogue();
    EXPECT_EQ(ut::registeredTableCount(), tables);
    // The host's catalogue itself refuses the same tables again.
    EXPECT_FALSE(ut_mem_add_primary_message_table(&primaryErrorTable()));
    EXPECT_FALSE(ut_mem_add_language("ja", &japaneseErrorTable()));
    EXPECT_EQ(ut::registeredTableCount(), tables);
}
