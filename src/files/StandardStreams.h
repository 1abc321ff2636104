// Standard input and output of a program without a window.
#pragma once

namespace StandardStreams {

/// Bytes pass as they are, line ends included. Some systems rewrite them otherwise.
void KeepBytes();

}  // namespace StandardStreams
