#pragma once

#include "platform/ports.h"

class QtJsonText : public JsonText {
public:
    std::optional<Json> read(std::string_view text) override;
    std::string write(const Json& json) override;
};
