#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

namespace orvanta {

/// A reference count, starting at 1. It is not atomic until a second thread starts, if the C
/// library reports that: ordinary arithmetic costs a fraction of an atomic operation.
template <class T>
class ReferenceCount {
 public:
  void retain() noexcept {
    if (isAlone()) return count_.store(value() + 1, std::memory_order_relaxed);
    count_.fetch_add(1, std::memory_order_relaxed);
  }
  /// Returns true if this was the last reference.
  bool release() noexcept {
    if (isAlone()) {
      const T left = value() - 1;
      count_.store(left, std::memory_order_relaxed);
      return left == 0;
    }
    return count_.fetch_sub(1, std::memory_order_acq_rel) == 1;
  }
  bool isOne() const noexcept { return count_.load(std::memory_order_acquire) == 1; }

 private:
  T value() const noexcept { return count_.load(std::memory_order_relaxed); }
  static bool isAlone() noexcept {
#if __has_include(<sys/single_threaded.h>)
    return __libc_single_threaded != 0;
#else
    return false;
#endif
  }

  std::atomic<T> count_{1};
};

/// Memory for everything that one operation allocates, such as the tree of one JSON text. It is
/// freed as a whole with the last reference to anything in it, so one long string keeps the whole
/// tree alive. One thread allocates; any thread may count references.
class Arena {
 public:
  /// Creates an arena with a first block of that many bytes and one reference, the caller's.
  static Arena* create(std::size_t firstBlock);

  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;

  /// Returns memory aligned for any node or value. Throws std::bad_alloc.
  void* allocate(std::size_t bytes) {
    bytes = (bytes + kAlignment - 1) & ~(kAlignment - 1);
    if (bytes > static_cast<std::size_t>(end_ - next_)) addBlock(bytes);
    void* result = next_;
    next_ += bytes;
    return result;
  }

  void retain() noexcept { count_.retain(); }
  void release() noexcept {
    if (count_.release()) destroy();
  }

 private:
  static constexpr std::size_t kAlignment = 8;
  struct Block {
    Block* previous;
    std::size_t bytes;
  };

  explicit Arena(std::size_t firstBlock) noexcept;
  ~Arena() = default;
  void addBlock(std::size_t atLeast);
  void destroy() noexcept;

  ReferenceCount<std::uint64_t> count_;
  Block* blocks_ = nullptr;  // all but the first, which follows the arena in memory
  std::byte* next_;
  std::byte* end_;
  std::size_t nextBlockBytes_;
};

/// Header of everything that values share by reference. A node on the heap counts its own
/// references; one in an arena counts them for the arena.
class Node {
 public:
  Node(const Node&) = delete;
  Node& operator=(const Node&) = delete;

  void retain() const noexcept {
    if (arena_ != nullptr) {
      arena_->retain();
    } else {
      count_.retain();
    }
  }
  /// Releases a reference. Returns true if it was the last one of a node on the heap, which the
  /// caller must destroy then.
  bool release() const noexcept {
    if (arena_ != nullptr) {
      arena_->release();
      return false;
    }
    return count_.release();
  }
  /// Returns whether the caller has the only reference and may change the node in place.
  bool isUnshared() const noexcept { return arena_ == nullptr && count_.isOne(); }

 protected:
  explicit Node(Arena* arena) noexcept : arena_(arena) {}
  ~Node() = default;
  /// The arena that the node is in; nullptr for one on the heap.
  Arena* arena() const noexcept { return arena_; }

 private:
  Arena* const arena_;
  mutable ReferenceCount<std::uint32_t> count_;
};

}  // namespace orvanta
