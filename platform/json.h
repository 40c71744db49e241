#pragma once

#include <string>
#include <vector>

struct JsonMember;

/// A JSON value as plain data. Texts are UTF-8.
struct Json {
    enum class Kind { null, truth, number, text, list, object };
    Kind kind = Kind::null;
    bool truth = false;
    double number = 0;
    std::string text;
    std::vector<Json> items;         ///< of a list
    std::vector<JsonMember> members; ///< of an object; each key once

    static Json of(bool value);
    static Json of(double value);
    static Json of(std::string value);
    static Json list();
    static Json object();

    const Json* find(const std::string& key) const;
    /// Puts a member in the place of what has its key.
    void set(const std::string& key, Json value);
    void erase(const std::string& key);
};

struct JsonMember {
    std::string key;
    Json value;
};
