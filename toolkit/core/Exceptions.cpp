#include "toolkit/core/Exceptions.h"

#include "toolkit/core/TextEncoding.h"

#include <system_error>
#include <utility>

RuntimeException::RuntimeException(Int64 errorNumber, String message)
    : std::runtime_error(Encodings::UTF8.Encode(message))
    , ErrorNumber(errorNumber)
    , Message(std::move(message))
{
}

IOException SystemError(int errorNumber)
{
    return {errorNumber, Encodings::UTF8.Decode(std::system_category().message(errorNumber))};
}
