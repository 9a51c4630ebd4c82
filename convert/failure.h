// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <stdexcept>
#include <string>

namespace convert {

// Why a recording is not converted, as the user is told, in UTF-8: "FILE:LINE: what is wrong".
class Failure : public std::runtime_error {
public:
    enum class Cause { Input, Output };

    Failure(Cause cause, const std::string &message) : std::runtime_error(message), m_cause(cause)
    {
    }
    Cause cause() const { return m_cause; }

private:
    Cause m_cause;
};

} // namespace convert
