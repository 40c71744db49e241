#include "files/recovery_copy.h"

#include "core/number_text.h"
#include "files/proved_line.h"

constexpr const char* copyMark = "Recovery copy";

std::string recoveryCopyText(std::string_view sheetText, const RecoveryLabel& label)
{
    const Fingerprint file = label.file.value_or(Fingerprint());
    return std::string(sheetText) +
           provedLine({copyMark, std::to_string(label.number), label.path, label.file ? "file" : "no file",
                       std::to_string(file.size), std::to_string(file.checksum), label.lastCounted,
                       label.shownSerial, std::to_string(sheetText.size())},
                      checksumOf(sheetText));
}

std::optional<ProvedCopy> readRecoveryCopy(std::string_view text)
{
    if (text.size() < 2 || text.back() != '\n')
        return std::nullopt;
    const auto end = text.rfind('\n', text.size() - 2);
    if (end == std::string_view::npos)
        return std::nullopt;
    const std::string_view sheetText = text.substr(0, end + 1);
    const auto fields = fieldsOfProvedLine(text.substr(end + 1), checksumOf(sheetText));
    if (!fields || fields->size() != 9 || fields->front() != copyMark ||
        (*fields)[8] != std::to_string(sheetText.size()))
        return std::nullopt;
    const auto number = wholeField((*fields)[1]);
    const auto size = wholeField((*fields)[4]);
    const auto checksum = wholeField((*fields)[5]);
    if (!number || !size || !checksum)
        return std::nullopt;
    RecoveryLabel label{*number, (*fields)[2], std::nullopt, (*fields)[6], (*fields)[7]};
    if ((*fields)[3] == "file")
        label.file = Fingerprint{*size, *checksum};
    return ProvedCopy{sheetText, label};
}
