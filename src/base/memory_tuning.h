#pragma once

namespace zm {

/// Lets the C library keep large freed blocks for the next picture instead of giving them back at once: pictures and
/// software textures of many megabytes are made and freed in every operation, and the page faults of fresh memory cost
/// more than the copying. Called once at the start of each program; without effect where the C library is not glibc.
void keepFreedMemoryWarm();

/// Gives all of it back to the system, for once: so that one large operation needs less at its peak.
void giveFreedMemoryBack();

} // namespace zm
