#include "toolkit/HttpAnswer.h"

#include "tests/fuzz/Input.h"
#include "toolkit/core/Exceptions.h"

#include <gtest/gtest.h>
#include <tuple>

namespace {

/// The error's number and what the answer says and holds, read so many bytes at a time.
std::tuple<Int64, Int64, std::string, Bytes> Read(std::string_view bytes, std::size_t step)
{
    HttpAnswer answer;
    try {
        for (std::size_t start = 0; start < bytes.size(); start += step)
            answer.Take(bytes.substr(start, step));
        answer.End();
    } catch (const RuntimeException& error) {
        return {error.ErrorNumber, 0, {}, {}};
    }
    return {0, answer.Status, answer.Location, answer.Content};
}

} // namespace

void Fuzz(Input& input)
{
    const Bytes bytes = input.ConsumeRemainingBytesAsString();
    EXPECT_EQ(Read(bytes, 1), Read(bytes, bytes.size() + 1));
}
