#include "ctables/recastor/commandline.h"

#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/inputfile.h"
#include "ctables/recastor/messages.h"
#include "ctables/recastor/outputfile.h"
#include "ctables/recastor/recastor.h"
#include "platform/zelkbase/zelkassert.h"
#include "platform/zelkmb/zelkmb.h"

#include <iostream>
#include <new>

namespace recastor {

namespace {

constexpr int kFailure = 1;

int FailWithUsage(const std::string& message, const std::string& fileName) {
    std::cerr << message << fileName << "\n\n" << Usage({}) << '\n';
    return kFailure;
}

int Fail(const std::string& message, const std::string& fileName) {
    std::cerr << message << fileName << '\n';
    return kFailure;
}

} // namespace

std::optional<RunRequest> ReadArguments(int argc, const char* const* argv) {
    constexpr int kWithoutSwitch = 3;
    constexpr int kWithSwitch = 4;
    if (argc != kWithoutSwitch && argc != kWithSwitch) {
        return std::nullopt;
    }
    const bool batch = argc == kWithSwitch;
    if (batch) {
        const std::string option = argv[1];
        if (!option.starts_with("-b") && !option.starts_with("/b")) {
            return std::nullopt;
        }
        ++argv;
    }
    return RunRequest{batch, argv[1], argv[2]};
}

std::string Usage(const std::string& /*programName*/) {
    return IDS_STRING_USAGE + '\n' + IDS_STRING_ARGS + '\n';
}

int RunConversion(const RunRequest& request) {
    InputFile input;
    if (!input.Open(request.inputName)) {
        return FailWithUsage(IDS_STRING_ERROR_INPUT_FILE, request.inputName);
    }
    if (!input.Inspect()) {
        return Fail(IDS_STRING_ERROR_READING_INPUT, request.inputName);
    }
    if (input.IsUtf16()) {
        return Fail(IDS_STRING_ERROR_UTF16_INPUT, request.inputName);
    }
    OutputFile output;
    if (!output.Open(request.outputName, input.File())) {
        return FailWithUsage(IDS_STRING_ERROR_OUTPUT_FILE, request.outputName);
    }
    const OnFatalStop writePending([&] { output.WritePending(); });
    if (!input.IsValidText()) {
        TreatHighBytesAsCharacters();
    }
    if (input.HasCrLf()) {
        output.UseCrLf();
    }
    CommandStream commands(input.Stream(), request.batch);
    bool converted = true;
    try {
        converted = ConvertCommands(commands, request.batch, output.Stream());
    } catch (const ReadFailure&) {
        output.WritePending(); // the commands so far; the one that is cut off is not written
        return Fail(IDS_STRING_ERROR_READING_INPUT, request.inputName);
    } catch (const std::bad_alloc&) {
        output.WritePending();
        return Fail(IDS_STRING_ERROR_NO_MEMORY, request.inputName);
    }
    const bool written = output.Close();
    if (!converted) {
        PrintFailedMessage();
    }
    if (!written) {
        Fail(IDS_STRING_ERROR_WRITING_OUTPUT, request.outputName);
    }
    return converted && written ? 0 : kFailure;
}

void PrintFailedMessage() {
    std::string message;
    if (SCLoadString(message, IDS_FAILED_MESSAGE)) {
        std::cerr << message << '\n';
    }
}

} // namespace recastor
