// A library that is loaded in front of the C library and disturbs chosen calls of the system. The
// environment says which: RECASTOR_FAULT=CALL:NUMBER:ERROR makes the NUMBERth call (from 1) of CALL
// fail with errno ERROR, and every later one when NUMBER is followed by "+". ERROR "short" makes a
// read or a write take one byte only; ERROR "kill" kills the program in place of the call; ERROR
// "wait" makes the call when the pipe that RECASTOR_PIPE names was opened and closed by a writer.
// When a call is disturbed, the folder that RECASTOR_FAULT_MARK names is made. With
// RECASTOR_CASE_BLIND every file system seems to take names that differ in case for one, as far as
// faccessat() tells.

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// What the environment asks for.
struct Fault {
    std::string call;
    int number = 0;
    bool everyLater = false;
    bool isShort = false;
    bool kills = false;
    bool waits = false;
    int error = 0;
};

Fault ReadFault() {
    Fault fault;
    const char* const setting = std::getenv("RECASTOR_FAULT");
    if (setting == nullptr) {
        return fault;
    }
    const std::string text = setting;
    const std::size_t first = text.find(':');
    const std::size_t second = text.find(':', first + 1);
    fault.call = text.substr(0, first);
    fault.number = std::atoi(text.c_str() + first + 1);
    fault.everyLater = text[second - 1] == '+';
    fault.isShort = text.substr(second + 1) == "short";
    fault.kills = text.substr(second + 1) == "kill";
    fault.waits = text.substr(second + 1) == "wait";
    fault.error = std::atoi(text.c_str() + second + 1);
    return fault;
}

const Fault& TheFault() {
    static const Fault fault = ReadFault();
    return fault;
}

/// Leaves a sign that a call was disturbed; making a folder takes none of the calls that are
/// counted.
void Mark() {
    const char* const folder = std::getenv("RECASTOR_FAULT_MARK");
    if (folder != nullptr) {
        ::mkdir(folder, S_IRWXU);
    }
}

/// Returns when a writer of the pipe has come and gone.
void WaitForPipe() {
    std::ifstream pipe(std::getenv("RECASTOR_PIPE"));
    pipe.get();
}

/// Counts the calls of the chosen kind; true for one that shall be disturbed.
bool IsChosen(const char* call) {
    static int count = 0;
    const Fault& fault = TheFault();
    if (fault.call != call) {
        return false;
    }
    ++count;
    const bool chosen = count == fault.number || (fault.everyLater && count > fault.number);
    if (chosen) {
        Mark();
    }
    if (chosen && fault.kills) {
        std::raise(SIGKILL);
    }
    if (chosen && fault.waits) {
        WaitForPipe();
        return false;
    }
    return chosen;
}

bool Fails(const char* call) {
    if (!IsChosen(call)) {
        return false;
    }
    errno = TheFault().error;
    return true;
}

/// The function that this library stands in front of.
template <typename Function>
Function* Next(const char* name) {
    void* const symbol = dlsym(RTLD_NEXT, name);
    Function* function = nullptr;
    static_assert(sizeof function == sizeof symbol);
    std::memcpy(&function, &symbol, sizeof function);
    return function;
}

/// Whether the folder holds a name that differs from `name` in case at most.
bool HoldsInAnyCase(int folder, const char* name) {
    const int reader = ::openat(folder, ".", O_RDONLY | O_DIRECTORY);
    DIR* const entries = ::fdopendir(reader);
    if (entries == nullptr) {
        return false;
    }
    bool holds = false;
    while (const dirent* const entry = ::readdir(entries)) {
        holds = holds || ::strcasecmp(entry->d_name, name) == 0;
    }
    ::closedir(entries);
    return holds;
}

} // namespace

extern "C" {

int faccessat(int folder, const char* name, int mode, int flags) noexcept {
    if (std::getenv("RECASTOR_CASE_BLIND") != nullptr && HoldsInAnyCase(folder, name)) {
        return 0;
    }
    return Next<int(int, const char*, int, int)>("faccessat")(folder, name, mode, flags);
}

int open(const char* path, int flags, ...) {
    if (Fails("open")) {
        return -1;
    }
    std::va_list arguments;
    va_start(arguments, flags);
    const auto mode = static_cast<mode_t>(va_arg(arguments, unsigned));
    va_end(arguments);
    return Next<int(const char*, int, ...)>("open")(path, flags, mode);
}

ssize_t read(int file, void* buffer, std::size_t size) {
    if (!IsChosen("read")) {
        return Next<decltype(read)>("read")(file, buffer, size);
    }
    if (TheFault().isShort) {
        return Next<decltype(read)>("read")(file, buffer, size < 1 ? size : 1);
    }
    errno = TheFault().error;
    return -1;
}

// The standard streams' own calls are not counted: they tell how it went.
ssize_t write(int file, const void* bytes, std::size_t size) {
    if (file <= STDERR_FILENO || !IsChosen("write")) {
        return Next<decltype(write)>("write")(file, bytes, size);
    }
    if (TheFault().isShort) {
        return Next<decltype(write)>("write")(file, bytes, size < 1 ? size : 1);
    }
    errno = TheFault().error;
    return -1;
}

int close(int file) {
    const bool fails = file > STDERR_FILENO && Fails("close");
    const int error = errno;
    const int result = Next<decltype(close)>("close")(file);
    errno = fails ? error : errno;
    return fails ? -1 : result;
}

off_t lseek(int file, off_t offset, int whence) {
    return Fails("lseek") ? -1 : Next<decltype(lseek)>("lseek")(file, offset, whence);
}

int ftruncate(int file, off_t length) noexcept {
    return Fails("ftruncate") ? -1 : Next<int(int, off_t)>("ftruncate")(file, length);
}

int fstat(int file, struct stat* status) noexcept {
    return Fails("fstat") ? -1 : Next<int(int, struct stat*)>("fstat")(file, status);
}

} // extern "C"
