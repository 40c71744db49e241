#include "tables/taxon_list.h"

#include "core/number_text.h"
#include "core/taxon_name.h"
#include "tables/plain_table.h"
#include "tables/table_words.h"

#include <algorithm>
#include <set>

namespace {

/// Column of a head, or -1.
int columnOf(const PlainTable& table, std::string_view head)
{
    for (int column = 0; column < table.fields(0); ++column)
        if (smallLetters(table.field(0, column)) == head)
            return column;
    return -1;
}

bool isYes(std::string_view cell)
{
    const std::string small = smallLetters(cell);
    return small == "1" || small == "x" || small == "yes";
}

bool isName(std::string_view name)
{
    return !name.empty() && name != noText;
}

std::vector<ListedTaxon> readColumns(const PlainTable& table, int names)
{
    const int groups = columnOf(table, "group");
    const int keys = columnOf(table, "key_index");
    const int subtotals[] = {-1, columnOf(table, "subtotal_1"), columnOf(table, "subtotal_2")};
    std::vector<ListedTaxon> list;
    for (int row = 1; row < table.rows(); ++row) {
        ListedTaxon taxon;
        taxon.name = cleanText(table.field(row, names));
        if (groups >= 0)
            taxon.group = cleanText(table.field(row, groups));
        if (keys >= 0 && isWholeNumber(table.field(row, keys)))
            taxon.keyIndex = wholeNumber(table.field(row, keys));
        if (taxon.keyIndex < 1 || taxon.keyIndex > taxonSlots)
            taxon.keyIndex = 0;
        for (int subtotal = 1; subtotal <= 2; ++subtotal)
            taxon.inSubtotal[subtotal] =
                subtotals[subtotal] >= 0 && isYes(table.field(row, subtotals[subtotal]));
        if (isName(taxon.name))
            list.push_back(std::move(taxon));
    }
    return list;
}

/// Each line is a name, whatever commas it has. A tab ends it, since cells of a spreadsheet come with them.
std::vector<ListedTaxon> readLines(std::string_view text)
{
    std::vector<ListedTaxon> list;
    const PlainTable lines(text, '\t');
    for (int row = 0; row < lines.rows(); ++row) {
        ListedTaxon taxon;
        for (int cell = 0; cell < lines.fields(row) && taxon.name.empty(); ++cell)
            taxon.name = cleanText(lines.field(row, cell));
        if (isName(taxon.name) && !(row == 0 && wholeWordOf(taxon.name) == TableWord::taxon))
            list.push_back(std::move(taxon));
    }
    return list;
}

/// A group of the list: a subtotal of the sheet that it was made from, or all taxa with its name.
struct Group {
    std::string name; ///< empty: not told
    int number = 0;   ///< 1 or 2: that subtotal; 0: told by name alone
    int subtotal = 0; ///< 1 or 2: where it goes; 0: nowhere

    bool holds(const ListedTaxon& taxon) const
    {
        return number != 0 ? taxon.inSubtotal[number] : taxon.group == name;
    }
};

class Planner {
public:
    Planner(const std::vector<ListedTaxon>& list, const SheetTables& sheet) : list_(list), sheet_(sheet) {}
    TaxonPlan plan();

private:
    bool isFree(int slot) const;
    bool mayBeNamed(int subtotal) const;
    const std::string& nameToBe(int subtotal) const
    {
        const std::string& given = plan_.subtotalNames[subtotal];
        return given.empty() ? sheet_.SheetHeader[2][subtotal + 1] : given;
    }
    void chooseNew();
    void findGroups();
    void meetGroups();
    void place(const ListedTaxon& taxon, int slot);
    void remarkNames(const std::vector<std::string>& names, const char* one, const char* several);

    const std::vector<ListedTaxon>& list_;
    const SheetTables& sheet_;
    TaxonPlan plan_;
    std::vector<const ListedTaxon*> new_;
    std::vector<Group> groups_;
    std::set<int> taken_; ///< slots
};

bool Planner::isFree(int slot) const
{
    if (isName(sheet_.TaxonRecord[slot].Name) || taken_.count(slot) != 0)
        return false;
    for (int sample = 1; sample <= sheet_.SampleCount; ++sample)
        if (sheet_.Count(sample, slot) != 0)
            return false;
    return true;
}

void Planner::remarkNames(const std::vector<std::string>& names, const char* one, const char* several)
{
    if (names.empty())
        return;
    std::string text =
        decimalText(static_cast<long long>(names.size())) + " " + (names.size() == 1 ? one : several);
    for (std::size_t i = 0; i < names.size(); ++i)
        text += (i == 0 ? ": " : ", ") + names[i];
    plan_.remarks.push_back(text + ".");
}

void Planner::chooseNew()
{
    std::set<std::string> onSheet;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        onSheet.insert(sheet_.TaxonRecord[slot].Name);
    std::set<std::string> seen;
    std::vector<std::string> there;
    std::vector<std::string> twice;
    for (const ListedTaxon& taxon : list_)
        if (onSheet.count(taxon.name) != 0)
            there.push_back(taxon.name);
        else if (!seen.insert(taxon.name).second)
            twice.push_back(taxon.name);
        else
            new_.push_back(&taxon);
    remarkNames(there, "name is on the sheet already and left alone",
                "names are on the sheet already and left alone");
    remarkNames(twice, "name stands in the list more than once", "names stand in the list more than once");
}

void Planner::findGroups()
{
    const bool numbered = std::any_of(list_.begin(), list_.end(), [](const ListedTaxon& taxon) {
        return taxon.inSubtotal[1] || taxon.inSubtotal[2];
    });
    if (numbered)
        groups_ = {{{}, 1}, {{}, 2}};
    for (const ListedTaxon* const taxon : new_) {
        // In a list with both, the group of a taxon is the name of the first subtotal that it is in.
        const int first = taxon->inSubtotal[1] ? 1 : taxon->inSubtotal[2] ? 2 : 0;
        const auto known = std::find_if(groups_.begin(), groups_.end(),
                                        [&](const Group& group) { return group.name == taxon->group; });
        if (numbered && first != 0 && groups_[first - 1].name.empty())
            groups_[first - 1].name = taxon->group;
        else if (!numbered && !taxon->group.empty() && known == groups_.end())
            groups_.push_back({taxon->group});
    }
}

/// It has the name of a new sheet and no taxa.
bool Planner::mayBeNamed(int subtotal) const
{
    if (sheet_.SheetHeader[2][subtotal + 1] != "Subtotal-" + decimalText(subtotal))
        return false;
    return std::none_of(sheet_.TaxonRecord.begin() + 1, sheet_.TaxonRecord.end(),
                        [&](const TaxonFields& taxon) {
                            return wholeNumber(subtotal == 1 ? taxon.Subtotal1 : taxon.Subtotal2) != 0;
                        });
}

void Planner::meetGroups()
{
    std::set<int> met;
    const auto meet = [&](Group& group, int subtotal) {
        if (group.subtotal == 0 && met.insert(subtotal).second)
            group.subtotal = subtotal;
    };
    for (Group& group : groups_)
        for (int subtotal = 1; subtotal <= 2; ++subtotal)
            if (group.name.empty() ? group.number == subtotal
                                   : group.name == sheet_.SheetHeader[2][subtotal + 1])
                meet(group, subtotal);
    for (Group& group : groups_)
        for (int subtotal = 1; subtotal <= 2; ++subtotal)
            if (group.subtotal == 0 && (group.number == 0 || group.number == subtotal) &&
                mayBeNamed(subtotal)) {
                meet(group, subtotal);
                if (group.subtotal == subtotal)
                    plan_.subtotalNames[subtotal] = group.name;
            }
    for (const Group& group : groups_)
        if (group.subtotal == 0 && std::any_of(new_.begin(), new_.end(),
                                               [&](const ListedTaxon* taxon) { return group.holds(*taxon); }))
            plan_.remarks.push_back("Group \"" + group.name +
                                    "\" is left out: the subtotals of the sheet are \"" + nameToBe(1) +
                                    "\" and \"" + nameToBe(2) + "\".");
}

void Planner::place(const ListedTaxon& taxon, int slot)
{
    taken_.insert(slot);
    TaxonPlan::Row row{slot, taxon.name};
    for (const Group& group : groups_)
        if (group.subtotal != 0 && group.holds(taxon))
            row.inSubtotal[group.subtotal] = true;
    plan_.rows.push_back(std::move(row));
}

TaxonPlan Planner::plan()
{
    chooseNew();
    findGroups();
    meetGroups();
    std::vector<const ListedTaxon*> others;
    for (const ListedTaxon* const taxon : new_)
        if (taxon->keyIndex != 0 && isFree(taxon->keyIndex))
            place(*taxon, taxon->keyIndex);
        else
            others.push_back(taxon);
    std::vector<std::string> unplaced;
    int slot = 1;
    for (const ListedTaxon* const taxon : others) {
        while (slot <= taxonSlots && !isFree(slot))
            ++slot;
        if (slot <= taxonSlots)
            place(*taxon, slot);
        else
            unplaced.push_back(taxon->name);
    }
    remarkNames(unplaced, "taxon finds no free row", "taxa find no free row");
    std::sort(plan_.rows.begin(), plan_.rows.end(),
              [](const TaxonPlan::Row& one, const TaxonPlan::Row& other) { return one.slot < other.slot; });
    return std::move(plan_);
}

} // namespace

std::vector<ListedTaxon> readTaxonList(std::string_view text)
{
    const PlainTable table(text, separatorOf(text));
    const int names = table.rows() == 0 ? -1 : columnOf(table, "taxon");
    const bool isTable = names >= 0 && table.fields(0) > 1;
    return isTable ? readColumns(table, names) : readLines(text);
}

TaxonPlan planTaxa(const std::vector<ListedTaxon>& list, const SheetTables& sheet)
{
    return Planner(list, sheet).plan();
}
