#include "core/character_rule.h"

#include <gtest/gtest.h>

TEST(CharacterRule, allowsThePlainCharacterAloneOnTheKeysOfTheQuotationMark)
{
    struct Case {
        int key;
        const char* text;
        int caret;
        const char* title; ///< nullptr: allowed
        const char* left = "";
    };
    const char* const azerty = "Are you an AZERTY keyboard user?";
    for (const Case& c : {Case{50, "ab2", 3, nullptr},
                          {50, "ab@", 3, "Caution!", "ab"},
                          {50, "a\"b", 2, "Caution!", "ab"},
                          {51, "3", 1, nullptr},
                          {51, "#3", 1, azerty, "3"},
                          {51, "\"", 1, azerty, ""},
                          {222, "it's", 3, nullptr},
                          {222, "\"\"", 2, "Caution!", "\""},
                          {222, "\"", 0, nullptr},
                          {86, "\"pasted\"", 8, nullptr},
                          {noKeyYet, "\"", 1, nullptr}}) {
        const auto refused = refusedCharacter(c.text, c.caret, c.key);
        ASSERT_EQ(c.title != nullptr, refused.has_value()) << c.key << " " << c.text;
        if (!refused)
            continue;
        EXPECT_EQ(c.title, refused->title);
        EXPECT_EQ(c.left, refused->text);
        EXPECT_EQ(c.caret - 1, refused->caret);
    }
}
