#include "figure/settings_file.h"

#include "core/number_text.h"

#include <array>
#include <cmath>
#include <functional>

namespace {

using S = FigureSettings;

template <class Enum>
using Words = std::vector<std::pair<Enum, const char*>>;

const Words<TaxonOrder> orders = {{TaxonOrder::rows, "sheet"},
                                  {TaxonOrder::group, "group"},
                                  {TaxonOrder::wa, "wa"},
                                  {TaxonOrder::groupWa, "group-wa"}};
const Words<FigureBasis> bases = {
    {FigureBasis::all, "all"}, {FigureBasis::sub1, "sub1"}, {FigureBasis::sub2, "sub2"}};
const Words<NameSlant> slants = {
    {NameSlant::plain, "plain"}, {NameSlant::italic, "italic"}, {NameSlant::words, "words"}};
const Words<ZonesBy> zoneKinds = {
    {ZonesBy::none, "none"}, {ZonesBy::stick, "stick"}, {ZonesBy::hand, "hand"}};
const Words<Transform> transforms = {{Transform::sqrt, "sqrt"}, {Transform::none, "none"}};
const Words<ClusterMethod> methods = {{ClusterMethod::grimm, "grimm"},
                                      {ClusterMethod::unweighted, "unweighted"}};
const Words<GroupFill> fills = {
    {GroupFill::colours, "colours"}, {GroupFill::greys, "greys"}, {GroupFill::hatches, "hatches"}};
constexpr std::pair<bool FigureStyle::*, const char*> styles[] = {{&FigureStyle::silhouette, "silhouette"},
                                                                  {&FigureStyle::line, "line"},
                                                                  {&FigureStyle::thickBars, "bars"},
                                                                  {&FigureStyle::thinBars, "thin-bars"},
                                                                  {&FigureStyle::points, "points"}};
constexpr std::pair<std::string S::*, const char*> texts[] = {
    {&S::title, "title"},          {&S::foot, "foot"},          {&S::depthTitle, "depth_title"},
    {&S::depthUnit, "depth_unit"}, {&S::ageTitle, "age_title"}, {&S::ageUnit, "age_unit"}};
constexpr std::pair<bool S::*, const char*> truths[] = {{&S::plus, "plus"}, {&S::headings, "headings"}};
constexpr std::size_t longestText = 500;

std::string colourText(Colour colour)
{
    constexpr const char* digits = "0123456789ABCDEF";
    std::string text = "#";
    for (const int part : {colour.red, colour.green, colour.blue})
        (text += digits[part / 16]) += digits[part % 16];
    return text;
}

std::optional<Colour> colourOf(const std::string& text)
{
    if (text.size() != 7 || text[0] != '#')
        return std::nullopt;
    std::array<int, 6> digits{};
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const std::size_t place = std::string_view("0123456789ABCDEFabcdef").find(text[i + 1]);
        if (place == std::string_view::npos)
            return std::nullopt;
        digits[i] = static_cast<int>(place < 16 ? place : place - 6);
    }
    const auto part = [&](std::size_t i) {
        return static_cast<std::uint8_t>(16 * digits[i] + digits[i + 1]);
    };
    return RGB(part(0), part(2), part(4));
}

Json namesOf(const std::vector<std::string>& names)
{
    Json list = Json::list();
    for (const std::string& name : names)
        list.items.push_back(Json::of(name));
    return list;
}

template <class Enum>
const char* wordOf(const Words<Enum>& words, Enum value)
{
    for (const auto& [meaning, word] : words)
        if (meaning == value)
            return word;
    return "";
}

/// Reads members of an object one by one and notes what is wrong with them.
class Reader {
public:
    Reader(const Json& json, ReadSettings& result) : json_(json), result_(result) {}

    bool any = false; ///< at least one key was ours

    const Json* member(const char* key, Json::Kind kind)
    {
        const Json* const found = json_.find(key);
        if (found == nullptr)
            return nullptr;
        any = true;
        if (found->kind == kind)
            return found;
        ignored(key);
        return nullptr;
    }
    void ignored(const std::string& key)
    {
        result_.findings.push_back("The setting \"" + key + "\" was not understood and is ignored.");
    }

    std::optional<double> number(const char* key, double least, double most)
    {
        const Json* const found = member(key, Json::Kind::number);
        if (found == nullptr)
            return std::nullopt;
        if (found->number >= least && found->number <= most)
            return found->number;
        result_.findings.push_back("The setting \"" + std::string(key) + "\" is not from " +
                                   plainDecimal(least) + " to " + plainDecimal(most) + " and is ignored.");
        return std::nullopt;
    }
    template <class Enum>
    void word(const char* key, const Words<Enum>& words, Enum& value)
    {
        const Json* const found = member(key, Json::Kind::text);
        if (found == nullptr)
            return;
        for (const auto& [meaning, word] : words)
            if (found->text == word) {
                value = meaning;
                return;
            }
        ignored(key);
    }
    std::vector<std::string> names(const Json& list, const char* key)
    {
        std::vector<std::string> names;
        for (const Json& item : list.items)
            if (item.kind == Json::Kind::text && item.text.size() <= longestText)
                names.push_back(item.text);
            else
                ignored(key);
        return names;
    }

private:
    const Json& json_;
    ReadSettings& result_;
};

void readStyle(Reader& reader, FigureStyle& style)
{
    const Json* const found = reader.member("style", Json::Kind::list);
    if (found == nullptr)
        return;
    FigureStyle read = {false, false, false, false, false};
    for (const std::string& word : reader.names(*found, "style")) {
        bool known = false;
        for (const auto& [part, name] : styles)
            if (word == name)
                read.*part = known = true;
        if (!known)
            reader.ignored("style");
    }
    if (read != FigureStyle{false, false, false, false, false})
        style = read;
}

void readGroups(Reader& reader, S& settings)
{
    const Json* const found = reader.member("groups", Json::Kind::list);
    if (found == nullptr)
        return;
    for (const Json& item : found->items) {
        const Json* const name = item.find("name");
        const Json* const colour = item.find("colour");
        const Json* const taxa = item.find("taxa");
        if (name == nullptr || name->kind != Json::Kind::text || taxa == nullptr ||
            taxa->kind != Json::Kind::list) {
            reader.ignored("groups");
            continue;
        }
        FigureGroup group{name->text, groupColour(settings.groups.size()), reader.names(*taxa, "groups")};
        if (const auto read = colour == nullptr ? std::nullopt : colourOf(colour->text))
            group.colour = *read;
        settings.groups.push_back(std::move(group));
    }
}

void readLists(Reader& reader, S& settings)
{
    if (const Json* const taxa = reader.member("taxa", Json::Kind::list))
        settings.taxa = reader.names(*taxa, "taxa");
    if (const Json* const names = reader.member("zone_names", Json::Kind::list))
        settings.zoneNames = reader.names(*names, "zone_names");
    if (const Json* const cuts = reader.member("cuts", Json::Kind::list)) {
        for (const Json& cut : cuts->items)
            if (cut.kind == Json::Kind::number && std::isfinite(cut.number))
                settings.cuts.push_back(cut.number);
            else
                reader.ignored("cuts");
    }
    if (const Json* const ages = reader.member("ages", Json::Kind::list)) {
        for (const Json& pair : ages->items)
            if (pair.items.size() == 2 && pair.items[0].kind == Json::Kind::number &&
                pair.items[1].kind == Json::Kind::number)
                settings.ages.push_back({pair.items[0].number, pair.items[1].number});
            else
                reader.ignored("ages");
    }
    if (const Json* const own = reader.member("name_slants", Json::Kind::object))
        for (const auto& [taxon, word] : own->members)
            for (const auto& [slant, name] : slants)
                if (word.text == name)
                    settings.slants.emplace_back(taxon, slant);
}

} // namespace

Json settingsToJson(const FigureSettings& settings, Json kept)
{
    Json json = kept.kind == Json::Kind::object ? std::move(kept) : Json::object();
    for (const NumberSetting& setting : numberSettings)
        json.set(setting.key, Json::of(settings.*setting.member));
    const std::pair<const std::optional<double>&, const char*> optional[] = {
        {settings.header, "header"}, {settings.depthFrom, "depth_from"}, {settings.depthTo, "depth_to"}};
    for (const auto& [value, key] : optional)
        if (value)
            json.set(key, Json::of(*value));
        else
            json.erase(key);
    json.set("dots_per_inch", Json::of(static_cast<double>(settings.dotsPerInch)));
    json.set("samples", Json::of(static_cast<double>(settings.samples)));
    for (const auto& [member, key] : texts)
        json.set(key, Json::of(settings.*member));
    for (const auto& [member, key] : truths)
        json.set(key, Json::of(settings.*member));
    json.set("order", Json::of(std::string(wordOf(orders, settings.order))));
    json.set("basis", Json::of(std::string(wordOf(bases, settings.basis))));
    json.set("names", Json::of(std::string(wordOf(slants, settings.slant))));
    json.set("zones_by", Json::of(std::string(wordOf(zoneKinds, settings.zonesBy))));
    json.set("transform", Json::of(std::string(wordOf(transforms, settings.transform))));
    json.set("method", Json::of(std::string(wordOf(methods, settings.method))));
    json.set("fill", Json::of(std::string(wordOf(fills, settings.fill))));
    Json style = Json::list();
    for (const auto& [part, name] : styles)
        if (settings.style.*part)
            style.items.push_back(Json::of(std::string(name)));
    json.set("style", std::move(style));
    settings.taxa ? json.set("taxa", namesOf(*settings.taxa)) : json.erase("taxa");
    settings.prefix ? json.set("prefix", Json::of(*settings.prefix)) : json.erase("prefix");
    json.set("zone_names", namesOf(settings.zoneNames));
    Json own = Json::object();
    for (const auto& [taxon, slant] : settings.slants)
        own.set(taxon, Json::of(std::string(wordOf(slants, slant))));
    json.set("name_slants", std::move(own));
    Json cuts = Json::list();
    for (const double cut : settings.cuts)
        cuts.items.push_back(Json::of(cut));
    json.set("cuts", std::move(cuts));
    Json ages = Json::list();
    for (const DatedDepth& dated : settings.ages) {
        Json pair = Json::list();
        pair.items = {Json::of(dated.depth), Json::of(dated.age)};
        ages.items.push_back(std::move(pair));
    }
    json.set("ages", std::move(ages));
    Json groups = Json::list();
    for (const FigureGroup& group : settings.groups) {
        Json one = Json::object();
        one.set("name", Json::of(group.name));
        one.set("colour", Json::of(colourText(group.colour)));
        one.set("taxa", namesOf(group.taxa));
        groups.items.push_back(std::move(one));
    }
    json.set("groups", std::move(groups));
    return json;
}

ReadSettings settingsFromJson(const Json& json)
{
    ReadSettings result;
    S& settings = result.settings;
    Reader reader(json, result);
    for (const NumberSetting& setting : numberSettings)
        if (const auto value = reader.number(setting.key, setting.least, setting.most))
            settings.*setting.member = *value;
    constexpr double anyDepth = 1e7;
    settings.header = reader.number("header", 0, 300);
    settings.depthFrom = reader.number("depth_from", -anyDepth, anyDepth);
    settings.depthTo = reader.number("depth_to", -anyDepth, anyDepth);
    settings.samples = static_cast<int>(reader.number("samples", 1, 250).value_or(settings.samples));
    settings.dotsPerInch =
        static_cast<int>(reader.number("dots_per_inch", 72, 1200).value_or(settings.dotsPerInch));
    for (const auto& [member, key] : texts)
        if (const Json* const text = reader.member(key, Json::Kind::text))
            text->text.size() <= longestText ? settings.*member = text->text, void() : reader.ignored(key);
    for (const auto& [member, key] : truths)
        if (const Json* const truth = reader.member(key, Json::Kind::truth))
            settings.*member = truth->truth;
    reader.word("order", orders, settings.order);
    reader.word("basis", bases, settings.basis);
    reader.word("names", slants, settings.slant);
    reader.word("zones_by", zoneKinds, settings.zonesBy);
    reader.word("transform", transforms, settings.transform);
    reader.word("method", methods, settings.method);
    reader.word("fill", fills, settings.fill);
    if (const Json* const prefix = reader.member("prefix", Json::Kind::text); prefix != nullptr)
        settings.prefix = prefix->text.substr(0, 20);
    readStyle(reader, settings.style);
    readLists(reader, settings);
    readGroups(reader, settings);
    result.foreign = !reader.any;
    return result;
}
