#include "files/export_text.h"

#include "core/fields.h"

#include <algorithm>

/// Only the path of an opened sheet can have quotation marks.
static std::string withoutQuotationMarks(std::string text)
{
    std::replace(text.begin(), text.end(), '"', '\'');
    return text;
}

std::string historyText(const ActionRecord& log, std::string_view savedAt)
{
    FieldWriter fields;
    fields.text("Start: ").text(log.ActionTime[0]).endLine();
    for (int i = 1; i <= log.ActionCount; ++i)
        fields.text(withoutQuotationMarks(log.ActionText[i])).text(log.ActionTime[i]).endLine();
    fields.text("Saved: ").text(savedAt).endLine();
    return fields.take();
}

std::string saturationText(const SaturationCurve& curve, std::string_view sampleName)
{
    FieldWriter fields;
    fields.text(sampleName).endLine();
    fields.text("No. of individuals").text("Diversity").endLine();
    for (int individuals = 1; individuals <= curve.DiversityTotal; ++individuals)
        if (curve.DiversityCurve[individuals] > 0)
            fields.number(individuals).decimal(curve.DiversityCurve[individuals] / 10.0).endLine();
    fields.text("(End)").endLine();
    return fields.take();
}
