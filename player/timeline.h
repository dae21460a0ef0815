// --timeline: writes a run to a file in the trace-event format, the JSON that Perfetto and browsers' performance tools
// read. Without an open file, the functions do nothing. They raise no Lua error.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace player {

// The rows of the timeline. Slices are on the first one.
enum class Track { kScript = 1, kCalls = 2, kEvents = 3 };

// Opens the file, with `title` as the name of the process. Throws std::runtime_error if it cannot be written.
void OpenTimeline(const std::filesystem::path& file, const std::string& title);

// Begins a slice of time, which may be inside another.
void BeginSlice(std::string_view name);

// Ends the innermost slice. `error`, if not empty, is its argument "error".
void EndSlice(std::string_view error = {});

// Marks a point in time.
void MarkPoint(Track track, std::string_view name);

// Ends the open slices and closes the file. Prints a message if it could not be written.
void CloseTimeline();

}  // namespace player
