#include "platform/json.h"

#include <utility>

Json Json::of(bool value)
{
    Json json;
    json.kind = Kind::truth;
    json.truth = value;
    return json;
}

Json Json::of(double value)
{
    Json json;
    json.kind = Kind::number;
    json.number = value;
    return json;
}

Json Json::of(std::string value)
{
    Json json;
    json.kind = Kind::text;
    json.text = std::move(value);
    return json;
}

Json Json::list()
{
    Json json;
    json.kind = Kind::list;
    return json;
}

Json Json::object()
{
    Json json;
    json.kind = Kind::object;
    return json;
}

const Json* Json::find(const std::string& key) const
{
    for (const auto& [name, value] : members)
        if (name == key)
            return &value;
    return nullptr;
}

void Json::set(const std::string& key, Json value)
{
    for (auto& [name, old] : members)
        if (name == key) {
            old = std::move(value);
            return;
        }
    members.push_back({key, std::move(value)});
}

void Json::erase(const std::string& key)
{
    for (auto member = members.begin(); member != members.end(); ++member)
        if (member->key == key) {
            members.erase(member);
            return;
        }
}
