#pragma once

namespace quendle {

// Thrown to end the process; caught only in the frames that call into the engine (an event, a
// timer callback, a form event). What was under way runs no further.
struct ProcessEnds {
  // True: the frame that catches it runs ShutDownGame on its empty stack.
  bool shut_down_game = false;
};

}  // namespace quendle
