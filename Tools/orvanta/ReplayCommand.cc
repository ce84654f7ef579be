#include <unistd.h>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <exception>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <mutex>
#include <thread>
#include <vector>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/LineReader.h"
#include "orvanta/Tool/Replay.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

using Chunk = std::vector<ReplayLine>;

/// Chunks on their way from the reader to the jobs; the reader waits when there are many. After a
/// job has failed there are none.
class Chunks {
 public:
  explicit Chunks(std::size_t most) : most_(most) {}

  /// Throws what a job has failed with.
  void put(Chunk chunk) {
    std::unique_lock lock(lock_);
    changed_.wait(lock, [&] { return failure_ || chunks_.size() < most_; });
    if (failure_) std::rethrow_exception(failure_);
    chunks_.push_back(std::move(chunk));
    changed_.notify_all();
  }
  void end() {
    const std::lock_guard lock(lock_);
    isEnded_ = true;
    changed_.notify_all();
  }
  void fail(std::exception_ptr failure) {
    const std::lock_guard lock(lock_);
    if (!failure_) failure_ = std::move(failure);
    changed_.notify_all();
  }
  void rethrowFailure() {
    const std::lock_guard lock(lock_);
    if (failure_) std::rethrow_exception(failure_);
  }
  bool take(Chunk& chunk) {
    std::unique_lock lock(lock_);
    changed_.wait(lock, [&] { return failure_ || isEnded_ || !chunks_.empty(); });
    if (failure_ || chunks_.empty()) return false;
    chunk = std::move(chunks_.front());
    chunks_.pop_front();
    changed_.notify_all();
    return true;
  }

 private:
  std::size_t most_;
  std::mutex lock_;
  std::condition_variable changed_;
  std::deque<Chunk> chunks_;
  bool isEnded_ = false;
  std::exception_ptr failure_;
};

/// Bytes that were read, drawn on a terminal now and then.
class Progress {
 public:
  explicit Progress(const Streams& streams, std::uint64_t total)
      : out_(streams.err),
        total_(total),
        isShown_(&streams.err == &std::cerr && isatty(STDERR_FILENO) != 0) {}
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() {
    if (isShown_) out_ << "\r\x1B[K" << std::flush;
  }

  void at(std::uint64_t bytes, std::uint64_t lines) {
    if (!isShown_) return;
    constexpr std::uint64_t kWidth = 40;
    out_ << '\r';
    if (total_ != 0) {
      const std::uint64_t done = std::min(kWidth, bytes * kWidth / total_);
      out_ << '[' << std::string(done, '#') << std::string(kWidth - done, ' ') << "] "
           << std::min<std::uint64_t>(100, bytes * 100 / total_) << " %, ";
    }
    out_ << lines << " lines" << std::flush;
  }

 private:
  std::ostream& out_;
  std::uint64_t total_;
  bool isShown_;
};

/// Reads everything and hands it on in chunks.
template <class Take>
void readChunks(LineReader& lines, Progress& progress, Take&& take) {
  constexpr std::size_t kChunkBytes = std::size_t{1} << 20U;
  Chunk chunk;
  std::size_t bytes = 0;
  std::uint64_t allBytes = 0;
  const auto hand = [&] {
    allBytes += bytes;
    bytes = 0;
    take(std::move(chunk));
    chunk.clear();
    progress.at(allBytes, lines.number());
  };
  while (lines.next()) {
    bytes += lines.text().size() + 1;
    if (lines.text().find_first_not_of(" \t") == std::string::npos) continue;
    chunk.push_back({lines.number(), lines.location(), lines.text(), lines.isTooLong()});
    if (bytes >= kChunkBytes) hand();
  }
  hand();
}

ReplayCounts replayAll(LineReader& lines, Progress& progress, std::uint64_t jobs) {
  std::vector<Replay> replays(jobs);
  const auto runChunk = [](Replay& replay, const Chunk& chunk) {
    for (const ReplayLine& line : chunk) replay.run(line);
  };
  if (jobs == 1) {
    readChunks(lines, progress, [&](const Chunk& chunk) { runChunk(replays.front(), chunk); });
  } else {
    Chunks chunks(2 * jobs);
    {
      std::vector<std::jthread> threads;
      const struct End {
        Chunks& chunks;
        ~End() { chunks.end(); }
      } end{chunks};
      threads.reserve(replays.size());
      for (Replay& replay : replays) {
        threads.emplace_back([&] {
          try {
            Chunk chunk;
            while (chunks.take(chunk)) runChunk(replay, chunk);
          } catch (...) {
            chunks.fail(std::current_exception());
          }
        });
      }
      readChunks(lines, progress, [&](Chunk chunk) { chunks.put(std::move(chunk)); });
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
  const auto total = std::filesystem::file_size(options.file, unknown);
  LineReader lines({options.file}, streams);
  ReplayCounts counts;
  {
    Progress progress(streams, unknown ? 0 : total);
    counts = replayAll(lines, progress, options.jobs);
  }
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
