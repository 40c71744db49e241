#pragma once

#include <functional>
#include <string>
#include <string_view>

/// A name of several words with its first word cut, then the longest ones, as "Aulac. crassip." for
/// "Aulacoseira crassipunctata": as long as `fits` allows. No word is cut to fewer than three letters, so the
/// result may still not fit. A name of one word stays whole.
std::string shortName(std::string_view name, const std::function<bool(const std::string&)>& fits);
