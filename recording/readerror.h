// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <exception>

// Thrown where a device fails before its end: what it holds beyond that place would be missing
// unnoticed.
class ReadError : public std::exception { };
