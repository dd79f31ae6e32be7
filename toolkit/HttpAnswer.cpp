#include "toolkit/HttpAnswer.h"

#include "toolkit/URLConnection.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace {

/// The most bytes that are no content. One piece in a hundred bytes leaves room for all the content that we take.
constexpr std::size_t maximumOverhead = std::size_t{1} << 20;

RuntimeException NotUnderstood() { return {URLConnection::NoHttp, U"The server's answer is no HTTP"}; }

RuntimeException TooMuch(StringView what, Int64 limit, StringView unit)
{
    return {URLConnection::TooLong, String(what) + ToText(limit) + String(unit)};
}

char SmallLetter(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool SameWord(std::string_view left, std::string_view right)
{
    return std::ranges::equal(left, right, {}, SmallLetter, SmallLetter);
}

std::string_view WithoutBlanks(std::string_view text)
{
    const std::size_t start = std::min(text.find_first_not_of(" \t"), text.size());
    return text.substr(start, text.find_last_not_of(" \t") + 1 - start);
}

Int64 NumberOf(std::string_view digits, int base)
{
    Int64 number = -1;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
    if (error != std::errc() || end != digits.data() + digits.size() || number < 0) throw NotUnderstood();
    return number;
}

} // namespace

void HttpAnswer::Take(std::string_view bytes)
{
    while (!bytes.empty() && !IsComplete()) {
        const bool isContent = part_ == Part::Content || part_ == Part::Rest;
        bytes.remove_prefix(isContent ? TakeContent(bytes) : TakeLine(bytes));
    }
}

void HttpAnswer::End()
{
    if (part_ == Part::Rest) part_ = Part::End;
    if (!IsComplete()) throw RuntimeException(URLConnection::HungUp, U"The connection ended within the answer");
}

std::size_t HttpAnswer::TakeLine(std::string_view bytes)
{
    const std::size_t end = bytes.find('\n'), taken = std::min(end, bytes.size() - 1) + 1;
    overhead_ += taken;
    if (overhead_ > maximumOverhead) throw TooMuch(U"The answer has a head of more than ", maximumOverhead, U" bytes");
    line_ += bytes.substr(0, taken);
    if (end == std::string_view::npos) return taken;
    line_.resize(line_.size() - (line_.ends_with("\r\n") ? 2 : 1));
    EndLine(std::exchange(line_, {}));
    return taken;
}

void HttpAnswer::EndLine(std::string_view line)
{
    switch (part_) {
    case Part::Status:
        return TakeStatus(line);
    case Part::Head:
        return line.empty() ? EndHead() : TakeHeader(line);
    case Part::Size:
        Expect(NumberOf(WithoutBlanks(line.substr(0, line.find(';'))), 16));
        part_ = left_ > 0 ? Part::Content : Part::Trailer;
        return;
    case Part::Gap:
        if (!line.empty()) throw NotUnderstood();
        part_ = Part::Size;
        return;
    default:
        if (line.empty()) part_ = Part::End;
    }
}

void HttpAnswer::TakeStatus(std::string_view line)
{
    constexpr std::size_t versionLength = 9, statusLength = 3;
    if (!line.starts_with("HTTP/1.") || line.size() < versionLength + statusLength) throw NotUnderstood();
    Status = NumberOf(line.substr(versionLength, statusLength), 10);
    part_ = Part::Head;
}

void HttpAnswer::TakeHeader(std::string_view line)
{
    const std::size_t colon = std::min(line.find(':'), line.size() - 1);
    const std::string_view name = line.substr(0, colon), value = WithoutBlanks(line.substr(colon + 1));
    if (SameWord(name, "Content-Length")) {
        const Int64 length = NumberOf(value, 10);
        if (announced_ >= 0 && announced_ != length) throw NotUnderstood();
        announced_ = length;
    } else if (SameWord(name, "Transfer-Encoding")) {
        isChunked_ = SameWord(value, "chunked");
        if (!isChunked_ && !SameWord(value, "identity")) throw NotUnderstood();
    } else if (SameWord(name, "Location")) {
        Location = value;
    }
}

void HttpAnswer::EndHead()
{
    constexpr Int64 redirections[] = {301, 302, 303, 307, 308};
    if (std::ranges::find(redirections, Status) == std::end(redirections)) Location.clear();
    if (Status < 200) { // the answer proper is yet to come
        announced_ = -1;
        isChunked_ = false;
        part_ = Part::Status;
    } else if (!Location.empty() || Status == 204 || Status == 304) {
        part_ = Part::End;
    } else if (isChunked_) {
        part_ = Part::Size;
    } else if (announced_ < 0) {
        part_ = Part::Rest;
    } else {
        Expect(announced_);
        part_ = left_ > 0 ? Part::Content : Part::End;
    }
}

void HttpAnswer::Expect(Int64 length)
{
    if (length > URLConnection::MaximumSize - std::ssize(Content))
        throw TooMuch(U"The answer is longer than ", URLConnection::MaximumSize, U" bytes");
    left_ = length;
}

std::size_t HttpAnswer::TakeContent(std::string_view bytes)
{
    if (part_ == Part::Rest) Expect(std::ssize(bytes));
    const std::string_view taken = bytes.substr(0, static_cast<std::size_t>(left_));
    Content += taken;
    left_ -= std::ssize(taken);
    lines_ += std::ranges::count_if(taken, [](char byte) { return byte == '\n' || byte == '\r'; });
    if (lines_ > URLConnection::MaximumLines)
        throw TooMuch(U"The answer has more than ", URLConnection::MaximumLines, U" lines");
    if (part_ == Part::Content && left_ == 0) part_ = isChunked_ ? Part::Gap : Part::End;
    return taken.size();
}
