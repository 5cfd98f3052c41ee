// The operating system's files and process. Only this folder knows the platform.
#include "base/run_error.h"
#include "host/file_system.h"
#include "host/system.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#ifdef _WIN32
#include "host/windows_text.h"

#include <io.h>
#else
#include <sys/statvfs.h>
#endif

namespace marlogl {

namespace {

namespace fs = std::filesystem;

// That there is no such file is an answer; that nobody could tell is none.
void check_look(const std::error_code &failed, const std::string &path)
{
    if (!failed || failed == std::errc::no_such_file_or_directory || failed == std::errc::not_a_directory)
        return;
    throw RunError(Fault::input_output, "cannot look for " + quoted_path(path) + ": " + failed.message());
}

template <typename... Numbers> std::string bytes_of(Numbers... numbers)
{
    std::string bytes;
    (bytes.append(reinterpret_cast<const char *>(&numbers), sizeof numbers), ...);
    return bytes;
}

#ifdef _WIN32

using Count = unsigned int; // of read and write
constexpr char null_device[] = "NUL";

fs::path native(const std::string &path)
{
    return wide(path);
}

std::string spelled(const fs::path &path)
{
    return utf8(path.native());
}

std::string program_folder()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return spelled(fs::path(path).parent_path());
}

int open_descriptor(const std::string &path, int flags)
{
    return _wopen(native(path).c_str(), flags | O_BINARY | O_NOINHERIT, _S_IREAD | _S_IWRITE);
}

int delete_file(const std::string &path)
{
    return _wunlink(native(path).c_str());
}

bool can_make(const std::string &)
{
    return false;
}

void cut(int descriptor, std::int64_t size)
{
    _chsize_s(descriptor, size);
}

std::string identity_of(const std::string &path, std::error_code &failed)
{
    const auto share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file = CreateFileW(native(path).c_str(), 0, share, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr); // of folders, too
    BY_HANDLE_FILE_INFORMATION known;
    if (file != INVALID_HANDLE_VALUE && GetFileInformationByHandle(file, &known) != 0) {
        CloseHandle(file);
        return bytes_of(known.dwVolumeSerialNumber, known.nFileIndexHigh, known.nFileIndexLow);
    }
    failed.assign(static_cast<int>(GetLastError()), std::system_category());
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    return {};
}

void prepare_signals() {}

// Messages are the same bytes everywhere, too.
void prepare_descriptor(int descriptor)
{
    _setmode(descriptor, O_BINARY);
}

#else

using Count = std::size_t;
constexpr char null_device[] = "/dev/null";

fs::path native(const std::string &path)
{
    return path;
}

std::string spelled(const fs::path &path)
{
    return path.native();
}

std::string program_folder()
{
    const char *link = "/proc/self/exe";
    char path[4096]; // no path of the system is longer
    const auto size = ::readlink(link, path, sizeof path);
    check_look(size < 0 ? std::error_code(errno, std::generic_category()) : std::error_code(), link);
    const std::string_view program(path, static_cast<std::size_t>(std::max(size, decltype(size){0})));
    return std::string(program.substr(0, std::max<std::size_t>(program.rfind('/'), 1)));
}

int open_descriptor(const std::string &path, int flags)
{
    return ::open(path.c_str(), flags | O_CLOEXEC, 0666);
}

int delete_file(const std::string &path)
{
    return ::unlink(path.c_str());
}

bool can_make(const std::string &path)
{
    const std::string folder = path.substr(0, path.rfind('/'));
    struct stat known;
    struct statvfs device;
    return ::lstat(path.c_str(), &known) != 0 && errno == ENOENT &&
           ::access(folder.c_str(), W_OK | X_OK) == 0 && ::statvfs(folder.c_str(), &device) == 0 &&
           device.f_bavail > 0 && device.f_favail > 0;
}

void cut(int descriptor, std::int64_t size)
{
    [[maybe_unused]] const int status = ::ftruncate(descriptor, static_cast<off_t>(size));
}

std::string identity_of(const std::string &path, std::error_code &failed)
{
    struct stat known;
    if (::stat(path.c_str(), &known) == 0)
        return bytes_of(known.st_dev, known.st_ino);
    failed.assign(errno, std::generic_category());
    return {};
}

void prepare_signals()
{
    for (const int signal : {SIGXFSZ, SIGPIPE})
        std::signal(signal, SIG_IGN);
}

void prepare_descriptor(int) {}

#endif

// No system call takes more than this at once.
constexpr std::size_t most_at_once = std::size_t{1} << 30;

std::string reason()
{
    return std::generic_category().message(errno);
}

bool no_such_file()
{
    return errno == ENOENT || errno == ENOTDIR;
}

[[noreturn]] void fail(const char *doing, const std::string &path, Fault fault = Fault::input_output)
{
    throw RunError(fault, std::string("cannot ") + doing + ' ' + quoted_path(path) + ": " + reason());
}

// How many bytes of `text` the descriptor took; fewer than all after an error, which errno tells.
std::size_t write_all(int descriptor, std::string_view text)
{
    std::size_t written = 0;
    while (written < text.size()) {
        const auto size = static_cast<Count>(std::min(text.size() - written, most_at_once));
        const auto got = ::write(descriptor, text.data() + written, size);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        written += static_cast<std::size_t>(got);
    }
    return written;
}

// An open file of the system; closed at the latest when it goes.
class Descriptor {
  public:
    Descriptor(int opened, std::string name) : number(opened), path(std::move(name)) {}
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (number >= 0)
            ::close(number);
    }

    int number;
    std::string path;
};

class SystemInputFile : public InputFile {
  public:
    SystemInputFile(int number, const std::string &path) : file_(number, path) {}

    std::size_t read(char *buffer, std::size_t size) override
    {
        for (;;) {
            const auto got = ::read(file_.number, buffer, static_cast<Count>(std::min(size, most_at_once)));
            if (got >= 0)
                return static_cast<std::size_t>(got);
            if (errno != EINTR)
                fail("read", file_.path);
        }
    }

  private:
    Descriptor file_;
};

class SystemOutputFile : public OutputFile {
  public:
    SystemOutputFile(int number, const std::string &path) : file_(number, path) {}

    void write(std::string_view text) override
    {
        if (!take(text))
            fail("write", file_.path);
    }

    void close() override
    {
        const int number = std::exchange(file_.number, -1);
        if (::close(number) != 0)
            fail("close", file_.path);
    }

    // After a failed write nothing is taken any more: it would stand behind a gap.
    void abandon(std::string_view text) noexcept override { take(text); }

  private:
    // Whether the file took all of `text`; else errno tells why not.
    bool take(std::string_view text) noexcept
    {
        if (full_)
            return false;
        const std::size_t written = write_all(file_.number, text);
        if (const std::size_t end = text.substr(0, written).rfind('\n'); end != text.npos)
            whole_lines_ = size_ + static_cast<std::int64_t>(end + 1);
        size_ += static_cast<std::int64_t>(written);
        full_ = written < text.size();
        if (full_) {
            const int cause = errno;
            // A device or a pipe can't be cut; what it took stays.
            cut(file_.number, whole_lines_);
            errno = cause;
        }
        return !full_;
    }

    Descriptor file_;
    std::int64_t size_ = 0, whole_lines_ = 0;
    bool full_ = false;
};

class SystemFiles : public FileSystem {
  public:
    std::unique_ptr<InputFile> open(const std::string &path) override
    {
        const int number = open_descriptor(path, O_RDONLY);
        if (number < 0 && no_such_file())
            return nullptr;
        if (number < 0)
            fail("open", path);
        return std::make_unique<SystemInputFile>(number, path);
    }

    std::unique_ptr<OutputFile> create(const std::string &path) override
    {
        const int number = open_descriptor(path, O_WRONLY | O_CREAT | O_TRUNC);
        if (number < 0)
            fail("create", path, no_such_file() ? Fault::missing_file : Fault::input_output);
        return std::make_unique<SystemOutputFile>(number, path);
    }

    bool can_create(const std::string &path) override { return can_make(path); }

    void remove(const std::string &path) override
    {
        if (delete_file(path) != 0)
            fail("delete", path);
    }

    std::string identity(const std::string &path) override
    {
        std::error_code failed;
        std::string found = identity_of(path, failed);
        check_look(failed, path);
        return found;
    }

    std::vector<std::string> names_in(const std::string &folder) override
    {
        std::vector<std::string> names;
        std::error_code failed;
        for (fs::directory_iterator entry(native(folder), failed), end; !failed && entry != end;
             entry.increment(failed))
            names.push_back(spelled(entry->path().filename()));
        if (failed != std::errc::permission_denied)
            check_look(failed, folder);
        return names;
    }

    std::string executable_folder() override
    {
        const std::string folder = program_folder();
        return folder.empty() ? "." : folder;
    }

    std::string current_folder() override
    {
        std::error_code failed;
        const fs::path path = fs::current_path(failed);
        return path.empty() ? "." : spelled(path);
    }
};

} // namespace

std::unique_ptr<FileSystem> system_files()
{
    return std::make_unique<SystemFiles>();
}

void prepare_process()
{
    prepare_signals();
    for (int descriptor = 0; descriptor <= 2; ++descriptor) {
        struct stat status;
        if (::fstat(descriptor, &status) != 0 && errno == EBADF)
            // As this descriptor, the lowest that is free: those below it are open by now.
            open_descriptor(null_device, O_RDWR);
        prepare_descriptor(descriptor);
    }
}

bool write_to(int descriptor, std::string_view text)
{
    return write_all(descriptor, text) == text.size();
}

} // namespace marlogl
