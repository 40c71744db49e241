#include "core/fields.h"

#include <gtest/gtest.h>

/// The fields of a text, each in brackets, and a stroke behind the last one of a line.
static std::string fieldsOf(std::string_view text)
{
    FieldReader reader(text);
    std::string result;
    while (const auto field = reader.next())
        result += "[" + std::string(*field) + "]" + (reader.atLineEnd() ? "|" : "");
    return result;
}

TEST(Fields, areReadAsTheProgramAndSpreadsheetsWriteThem)
{
    const std::pair<const char*, const char*> cases[] = {
        {"\"A\",\"65\",\"1\"\r\n\"B\",\"66\",\"2\"\r\n", "[A][65][1]|[B][66][2]|"},
        {"a\rb,\n\nc", "[a]|[b][]|[]|[c]|"},
        {" \t\"q\" ,\t 81 \t,\" r \", two words ", "[q][81][ r ][two words]|"},
        // Marks keep separators together; what follows a closing one is lost, one further in opens nothing.
        {"\",\",\"a\r\nb\"lost,5\" nail", "[,][a\r\nb][5\" nail]|"},
        // Nothing behind the end of the text.
        {"a,\"never closed, b\r\nc", "[a]"},
        {"a,", "[a]"}};
    for (const auto& [text, fields] : cases)
        EXPECT_EQ(fields, fieldsOf(text)) << text;
}
