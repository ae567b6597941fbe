#pragma once

namespace tavrik {

/// Names the calling thread as the main thread. Called once, by whoever builds the program; without it no
/// thread is.
void declareMainThread();

bool isMainThread();

/// Ends the process, in every build, when the calling thread is the main one: `what` sleeps, waits for a child
/// or opens the Launchpad database, and would freeze the window.
void assertOffMainThread(const char* what);

/// Ends the process, in every build, when the calling thread is not the main one: `what` belongs to the
/// interface. Passes while no thread is named the main one.
void assertOnMainThread(const char* what);

} // namespace tavrik
