#pragma once

#include <map>
#include <optional>
#include <string>

namespace orvanta {

/// The files in which a simulated device keeps its state from run to run: "categories.json" and
/// "donations.jsonl". For one thread.
///
/// Requirements for implementers: each call throws std::runtime_error, with a message that names
/// the location, when it fails. A write is whole or not at all: no other reader sees half of it.
class StateStore {
 public:
  virtual ~StateStore() = default;
  /// Returns the contents of a file, nothing where it does not exist.
  virtual std::optional<std::string> read(const std::string& name) = 0;
  virtual void write(const std::string& name, const std::string& contents) = 0;
  virtual void append(const std::string& name, const std::string& line) = 0;
  /// Returns where a file is, for error messages.
  virtual std::string location(const std::string& name) const = 0;
};

/// Keeps the files in memory.
class InMemoryStateStore final : public StateStore {
 public:
  std::optional<std::string> read(const std::string& name) override {
    const auto file = files_.find(name);
    return file != files_.end() ? std::optional(file->second) : std::nullopt;
  }
  void write(const std::string& name, const std::string& contents) override {
    files_[name] = contents;
  }
  void append(const std::string& name, const std::string& line) override { files_[name] += line; }
  std::string location(const std::string& name) const override { return name; }

 private:
  std::map<std::string, std::string> files_;
};

}  // namespace orvanta
