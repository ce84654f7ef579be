#include <exception>
#include <filesystem>
#include <functional>
#include <iomanip>
#include <ostream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Tool/BoundedQueue.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/LineReader.h"
#include "orvanta/Tool/ProgressBar.h"
#include "orvanta/Tool/Replay.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

using Chunk = std::vector<RecordedLine>;

/// A thread that joins in its destructor; std::jthread is missing from some C++ libraries.
class JoiningThread {
 public:
  explicit JoiningThread(std::function<void()> run) : thread_(std::move(run)) {}
  JoiningThread(JoiningThread&&) = default;
  JoiningThread& operator=(JoiningThread&&) = delete;
  ~JoiningThread() {
    if (thread_.joinable()) thread_.join();
  }

 private:
  std::thread thread_;
};

/// Reads all lines and passes them on in chunks.
template <class Take>
void readChunks(LineReader& reader, ProgressBar& progress, std::uint64_t totalBytes, Take&& take) {
  constexpr std::size_t kChunkBytes = std::size_t{1} << 20U;
  Chunk chunk;
  std::size_t chunkBytes = 0;
  std::uint64_t bytes = 0;
  const auto passOn = [&] {
    bytes += chunkBytes;
    chunkBytes = 0;
    take(std::move(chunk));
    chunk.clear();
    progress.update(bytes, totalBytes, std::to_string(reader.number()) + " lines");
  };
  while (reader.next()) {
    chunkBytes += reader.text().size() + 1;
    if (reader.text().find_first_not_of(" \t") == std::string::npos) continue;
    chunk.push_back({reader.number(), reader.location(), reader.text(), reader.isTooLong()});
    if (chunkBytes >= kChunkBytes) passOn();
  }
  passOn();
}

ReplayCounts replayAll(LineReader& reader, ProgressBar& progress, std::uint64_t totalBytes,
                       std::uint64_t jobs) {
  std::vector<Replay> replays(jobs);
  const auto runChunk = [](Replay& replay, const Chunk& chunk) {
    for (const RecordedLine& line : chunk) replay.run(line);
  };
  if (jobs == 1) {
    readChunks(reader, progress, totalBytes,
               [&](const Chunk& chunk) { runChunk(replays.front(), chunk); });
  } else {
    BoundedQueue<Chunk> chunks(2 * jobs);
    {
      std::vector<JoiningThread> threads;
      const struct Close {  // before the threads are joined
        BoundedQueue<Chunk>& chunks;
        ~Close() { chunks.close(); }
      } close{chunks};
      threads.reserve(replays.size());
      for (Replay& replay : replays) {
        threads.emplace_back([&] {
          try {
            while (const auto chunk = chunks.pop()) runChunk(replay, *chunk);
          } catch (...) {
            chunks.fail(std::current_exception());
          }
        });
      }
      readChunks(reader, progress, totalBytes, [&](Chunk chunk) { chunks.push(std::move(chunk)); });
    }
    chunks.rethrowFailure();
  }
  ReplayCounts sum;
  for (const Replay& replay : replays) sum.add(replay.counts());
  return sum;
}

Dictionary asJSON(const ReplayCounts& counts) {
  Dictionary refusedBy;
  for (const auto& [key, count] : counts.refusedBy) refusedBy.set(key, count);
  Array badLines;
  for (const auto& [number, text] : counts.firstBadLines) badLines.append(text);
  return {{"format", 1},
          {"payloads", counts.payloads},
          {"deliveries", counts.deliveries},
          {"plain", counts.plain},
          {"buttons", counts.buttons},
          {"media", counts.media},
          {"icon", counts.icon},
          {"refused", counts.refused},
          {"refusedBy", refusedBy},
          {"undefinedKey", counts.undefinedKey},
          {"bytes", Dictionary{{"p50", counts.sizeAt(0.50)},
                               {"p90", counts.sizeAt(0.90)},
                               {"p99", counts.sizeAt(0.99)},
                               {"max", counts.sizeAt(1.0)}}},
          {"badLines", counts.badLines},
          {"firstBadLines", badLines}};
}

void printText(const ReplayCounts& counts, std::ostream& out) {
  const auto row = [&](const std::string& what, std::uint64_t count) {
    out << std::left << std::setw(40) << what << std::right << std::setw(12) << count << '\n';
  };
  row("payloads", counts.payloads);
  row("deliveries", counts.deliveries);
  row("  nothing beside the texts asked for", counts.plain);
  row("  buttons asked for", counts.buttons);
  row("  media asked for", counts.media);
  row("  sender icon asked for", counts.icon);
  row("  without a push object", counts.refused);
  for (const auto& [key, count] : counts.refusedBy) row("    " + escapeForTerminal(key), count);
  row(R"(  "aps" or "_ov" is no dictionary)", counts.undefinedKey);
  row("bytes: half of the payloads up to", counts.sizeAt(0.50));
  row("  90 % up to", counts.sizeAt(0.90));
  row("  99 % up to", counts.sizeAt(0.99));
  row("  all up to", counts.sizeAt(1.0));
}

}  // namespace

ExitCode replay(const ReplayOptions& options, const Streams& streams) {
  std::error_code unknown;
  const auto size = std::filesystem::file_size(options.file, unknown);
  LineReader reader({options.file}, streams);
  ProgressBar progress(streams.err);
  const ReplayCounts counts = replayAll(reader, progress, unknown ? 0 : size, options.jobs);
  progress.erase();
  for (const auto& [number, text] : counts.firstBadLines) {
    streams.err << "orvanta: " << text << '\n';
  }
  if (counts.badLines != 0) {
    streams.err << "orvanta: " << counts.badLines
                << (counts.badLines == 1 ? " line is no JSON object\n"
                                         : " lines are no JSON objects\n");
  }
  if (options.json) {
    printJSON(asJSON(counts), streams.out, /*pretty=*/true);
  } else {
    printText(counts, streams.out);
  }
  return counts.badLines == 0 ? ExitCode::done : ExitCode::rejected;
}

}  // namespace orvanta::tool
