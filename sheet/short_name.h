#pragma once

#include <functional>
#include <string>
#include <string_view>

/// A name of several words with its first word cut to five letters, then the others, as long as `fits` wants
/// it: of two words the longer one, to no fewer than three letters, as "Aulac. crassip." for "Aulacoseira
/// crassipunctata"; of more than two those in the middle, down to one, and the last one late, as "Tab. f. (s.
/// IIIp)" for "Tabellaria flocculosa (strain IIIp)". The result may still not fit. A name of one word stays
/// whole.
std::string shortName(std::string_view name, const std::function<bool(const std::string&)>& fits);
