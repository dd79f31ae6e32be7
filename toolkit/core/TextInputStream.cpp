#include "toolkit/core/TextInputStream.h"

#include "toolkit/core/Exceptions.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

struct TextInputStream::File {
    explicit File(int openDescriptor)
        : descriptor(openDescriptor)
    {
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() { ::close(descriptor); }

    /// Replaces the bytes in `ahead`, all of which were used, by the next ones; false at the end of the file.
    bool Refill()
    {
        ahead.resize(chunk);
        position = 0;
        ssize_t got = -1;
        do {
            got = ::read(descriptor, ahead.data(), ahead.size());
        } while (got < 0 && errno == EINTR);
        const int error = errno;
        ahead.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
        if (got < 0) throw SystemError(error);
        total += got;
        if (total > MaximumSize) throw SystemError(EFBIG);
        return got > 0;
    }

    bool HasMore() { return position < ahead.size() || Refill(); }

    [[nodiscard]] std::string_view Unused() const { return std::string_view(ahead).substr(position); }

    static constexpr std::size_t chunk = 1 << 16;

    int descriptor;
    Int64 total = 0;
    Bytes ahead;
    std::size_t position = 0;
};

TextInputStream::TextInputStream(std::unique_ptr<File> file)
    : file_(std::move(file))
{
}

TextInputStream::TextInputStream(TextInputStream&&) noexcept = default;
TextInputStream::~TextInputStream() = default;

TextInputStream TextInputStream::Open(const FolderItem& file)
{
    // Without O_NONBLOCK a pipe that nobody writes to would hold up the program.
    const int descriptor = ::open(file.Path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) throw SystemError(errno);
    auto opened = std::make_unique<File>(descriptor);
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0) throw SystemError(errno);
    if (S_ISDIR(status.st_mode)) throw SystemError(EISDIR);
    if (!S_ISREG(status.st_mode)) throw SystemError(EINVAL);
    if (status.st_size > MaximumSize) throw SystemError(EFBIG);
    return TextInputStream(std::move(opened));
}

Bytes TextInputStream::ReadAll()
{
    Bytes all;
    if (!file_) return all;
    struct stat status = {};
    if (::fstat(file_->descriptor, &status) == 0) all.reserve(static_cast<std::size_t>(status.st_size));
    while (file_->HasMore()) {
        all += file_->Unused();
        file_->position = file_->ahead.size();
    }
    return all;
}

Bytes TextInputStream::ReadLine()
{
    Bytes line;
    while (file_ && file_->HasMore()) {
        const std::string_view unused = file_->Unused();
        const std::size_t length = unused.find_first_of("\r\n");
        line += unused.substr(0, length);
        if (length == unused.npos) {
            file_->position = file_->ahead.size();
            continue;
        }
        const bool isReturn = unused[length] == '\r';
        file_->position += length + 1;
        if (isReturn && file_->HasMore() && file_->Unused().front() == '\n') ++file_->position;
        break;
    }
    return line;
}

bool TextInputStream::EndOfFile() { return !file_ || !file_->HasMore(); }

void TextInputStream::Close() { file_.reset(); }
