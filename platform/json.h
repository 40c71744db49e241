#pragma once

#include <string>
#include <utility>
#include <vector>

/// A JSON value as plain data. Texts are UTF-8.
struct Json {
    enum class Kind { null, truth, number, text, list, object };
    Kind kind = Kind::null;
    bool truth = false;
    double number = 0;
    std::string text;
    std::vector<Json> items;                           ///< of a list
    std::vector<std::pair<std::string, Json>> members; ///< of an object; each key once

    static Json of(bool value)
    {
        Json json;
        json.kind = Kind::truth;
        json.truth = value;
        return json;
    }
    static Json of(double value)
    {
        Json json;
        json.kind = Kind::number;
        json.number = value;
        return json;
    }
    static Json of(std::string value)
    {
        Json json;
        json.kind = Kind::text;
        json.text = std::move(value);
        return json;
    }
    static Json list()
    {
        Json json;
        json.kind = Kind::list;
        return json;
    }
    static Json object()
    {
        Json json;
        json.kind = Kind::object;
        return json;
    }

    const Json* find(const std::string& key) const
    {
        for (const auto& [name, value] : members)
            if (name == key)
                return &value;
        return nullptr;
    }
    /// Puts a member in the place of what has its key.
    void set(const std::string& key, Json value)
    {
        for (auto& [name, old] : members)
            if (name == key) {
                old = std::move(value);
                return;
            }
        members.emplace_back(key, std::move(value));
    }
    void erase(const std::string& key)
    {
        for (auto member = members.begin(); member != members.end(); ++member)
            if (member->first == key) {
                members.erase(member);
                return;
            }
    }
};
