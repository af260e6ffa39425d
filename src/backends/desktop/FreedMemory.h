#pragma once

namespace quendle {

// From now on a block of 128 KiB and more goes back to the system as soon as it is freed. Pictures
// and sounds come and go with the rooms; left to itself the allocator of the system keeps the
// places of large blocks for the next ones, and a game that has been everywhere holds most of what
// it ever needed. Call it before other threads start.
void GiveFreedMemoryBack();

}  // namespace quendle
