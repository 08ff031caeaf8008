#include "recording.h"

#include <charconv>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace
{
const char USAGE[] =
    "usage: make_recording [options]\n"
    "Simulates the logger of a diving seabird. The same options give the same bytes everywhere.\n"
    "  --duration SECONDS  length of the recording (1800)\n"
    "  --rows N            the same in rows\n"
    "  --rate HZ           rows per second (25)\n"
    "  --seed N            another number, another bird (12)\n"
    "  --output FOLDER     an existing folder (.)\n"
    "  --plain-9           recording.csv alone, with nine columns and no clock\n";

struct Arguments {
    RecordingOptions options;
    std::int64_t seconds = 1800;
    bool rowsGiven = false;
    bool plain = false;
};

template <typename Number>
bool readNumber(std::string_view text, Number least, Number& number)
{
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end && number >= least;
}

bool readOption(std::string_view name, std::string_view value, Arguments& arguments)
{
    RecordingOptions& options = arguments.options;
    if (name == "--duration")
        return readNumber<std::int64_t>(value, 1, arguments.seconds);
    if (name == "--rows") {
        arguments.rowsGiven = true;
        return readNumber<std::int64_t>(value, 1, options.rows);
    }
    if (name == "--rate")
        return readNumber(value, 1, options.rate);
    if (name == "--seed")
        return readNumber<std::uint64_t>(value, 0, options.seed);
    if (name == "--output") {
        options.folder = value;
        return true;
    }
    return false;
}

bool readArguments(int count, char* values[], Arguments& arguments)
{
    for (int i = 1; i < count; ++i) {
        if (std::strcmp(values[i], "--plain-9") == 0) {
            arguments.plain = true;
        } else if (i + 1 == count || !readOption(values[i], values[i + 1], arguments)) {
            return false;
        } else {
            ++i;
        }
    }
    if (!arguments.rowsGiven)
        arguments.options.rows = arguments.seconds * arguments.options.rate;
    return true;
}
} // namespace

int main(int count, char* values[])
{
    Arguments arguments;
    if (!readArguments(count, values, arguments)) {
        std::fputs(USAGE, stderr);
        return 2;
    }
    const bool written =
        arguments.plain ? WritePlain(arguments.options) : WriteExample(arguments.options);
    if (!written)
        std::fprintf(stderr, "Cannot write in \"%s\".\n", arguments.options.folder.c_str());
    return written ? 0 : 1;
}
