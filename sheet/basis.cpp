#include "sheet/basis.h"

#include "core/basis_members.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"

std::array<std::int32_t, taxonSlots + 1> basisWeights()
{
    std::array<std::int32_t, taxonSlots + 1> weights{};
    for (const int basis : {1, 2, 0}) {
        if (!frmMain.Option1[basis].selected)
            continue;
        for (int slot = 1; slot <= taxonSlots; ++slot)
            weights[slot] = basis == 0   ? 1
                            : basis == 1 ? wholeNumber(sheet.TaxonRecord[slot].Subtotal1)
                                         : wholeNumber(sheet.TaxonRecord[slot].Subtotal2);
        break;
    }
    return weights;
}

std::int32_t basisTotal(const SheetTables& tables, int sample,
                        const std::array<std::int32_t, taxonSlots + 1>& weights)
{
    std::int64_t total = 0;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        total += within32Bits(static_cast<std::int64_t>(tables.Count(sample, slot)) * weights[slot]);
    return within32Bits(total);
}

void ComputePercentages(int sample)
{
    const std::int32_t total = sheet.Count(sample, 0) = basisTotal(sheet, sample, basisWeights());
    for (int slot = 0; slot <= taxonSlots; ++slot)
        sheet.Share(sample, slot) =
            total == 0 ? noShare : static_cast<float>(static_cast<double>(sheet.Count(sample, slot)) / total);
}

void selectBasis(int basis)
{
    if (!frmMain.Option1[basis].selected)
        Option1_Click(basis);
}

void Option1_Click(int basis)
{
    for (int option = 0; option < 3; ++option)
        frmMain.Option1[option].selected = option == basis;
    frmMain.hundredMark = {};
    underlineBasis();
    sheet.AlarmArmed = true;
    if (sheet.DiagramOpen)
        hooks.RedrawDiagram();
    else
        frmMain.focus = MainFocus::Text99;
}
