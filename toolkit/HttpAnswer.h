/// The answer of a web server, read as it comes in. For the sources of this folder only.
#pragma once

#include "toolkit/core/TextEncoding.h"

#include <string>
#include <string_view>

/// An answer over HTTP/1.1. Besides its content it holds one line at most, whatever comes in.
class HttpAnswer {
public:
    /// Takes the next bytes that came; those behind the end of the answer are left out. Raises RuntimeException for
    /// what is no HTTP, and for more than the limits of URLConnection.
    void Take(std::string_view bytes);
    /// Tells that the connection has ended. Raises RuntimeException if the answer hasn't ended by it.
    void End();
    [[nodiscard]] bool IsComplete() const { return part_ == Part::End; }

    Int64 Status = 0;
    /// Where the server sends us on, as it says so, or "". Such an answer is complete without its content.
    std::string Location;
    Bytes Content;

private:
    enum class Part { Status, Head, Content, Rest, Size, Gap, Trailer, End };

    std::size_t TakeLine(std::string_view bytes);
    void EndLine(std::string_view line);
    void TakeStatus(std::string_view line);
    void TakeHeader(std::string_view line);
    void EndHead();
    void Expect(Int64 length);
    std::size_t TakeContent(std::string_view bytes);

    Part part_ = Part::Status;
    std::string line_;
    std::size_t overhead_ = 0;
    bool isChunked_ = false;
    Int64 announced_ = -1, left_ = 0, lines_ = 0;
};
