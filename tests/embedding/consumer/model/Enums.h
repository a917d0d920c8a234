// SPDX-License-Identifier: MIT
#pragma once

/// A header of the consumer's own, of a name that the library has too.
enum class Season { Spring, Summer, Autumn, Winter };
