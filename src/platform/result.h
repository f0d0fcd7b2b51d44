// SPDX-License-Identifier: GPL-3.0-or-later
// What a function returns that can fail: its value, or one Error made for the user's eyes. Exceptions of the
// libraries underneath are caught where they are called and arrive here as an Error.
#pragma once

#include <QString>

#include <tl/expected.hpp>

namespace zelto {

enum class ErrorCode {
    NotFound,      // no such file or folder
    Damaged,       // a picture that is cut short, broken, of an unknown format, or asks for too much memory
    OutOfMemory,   // there was not enough memory, at that moment, to go on
    InvalidFile,   // a setting or options file that cannot be understood
    InvalidValue,  // an argument outside what makes sense
    CannotWrite,   // a file or folder that could not be written
    Unsupported,   // a format or an option that cannot be served
    ProgramFailed  // a helper program that is missing or failed
};

struct Error {
    ErrorCode code = ErrorCode::InvalidValue;
    QString message;  // complete: names the file and what is wrong with it
    QString path;     // the file it is about; may be empty
};

template <class Value>
using Result = tl::expected<Value, Error>;

inline tl::unexpected<Error> fail(ErrorCode code, QString message, QString path = {}) {
    return tl::unexpected<Error>(Error{code, std::move(message), std::move(path)});
}

}  // namespace zelto
