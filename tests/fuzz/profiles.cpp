// Profiles in any bytes: what can be read can be written, and reads back the same, text for text.

#include "backend/NetworkPreset.h"
#include "fuzz/Fuzzing.h"

#include <nlohmann/json.hpp>

using namespace ardeo;

int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    const auto presets = decodePresets(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    if (!presets)
        return 0;
    const auto written = encodePresets(*presets);
    promise(written.has_value());
    const auto again = decodePresets(*written);
    promise(again == presets && encodePresets(*again) == written);
    const auto read = nlohmann::json::parse(data, data + size);
    for (size_t i = 0; i < read.size(); ++i)
        promise(read[i]["name"] == presets->at(qsizetype(i)).name.string().toStdString());
    return 0;
}
