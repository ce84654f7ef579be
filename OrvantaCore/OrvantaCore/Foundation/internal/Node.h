#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

namespace orvanta {

/// Counts references. Until the process starts its first other thread, where the C library tells,
/// counting is ordinary arithmetic, which costs a fraction of an atomic operation.
template <class T>
class ReferenceCount {
 public:
  void retain() noexcept {
    if (isAlone()) return count_.store(value() + 1, std::memory_order_relaxed);
    count_.fetch_add(1, std::memory_order_relaxed);
  }
  /// True when that was the last one.
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

/// Memory from which one operation (a parsed text, say) carves everything that it makes. It is
/// freed as a whole when the last value that refers to anything in it is gone, so a long string
/// that is kept keeps the text's whole tree alive. Carving is for one thread; counting is for any.
class Arena {
 public:
  /// Makes an arena with a first block of that many bytes; the caller holds one reference.
  static Arena* create(std::size_t firstBlock);

  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;

  /// Bytes aligned for any node or value. Throws std::bad_alloc.
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
  Block* blocks_ = nullptr;  // those after the first, which lies behind the arena itself
  std::byte* next_;
  std::byte* end_;
  std::size_t nextBlockBytes_;
};

/// Header of everything that values share by reference. A node of the heap counts its own
/// references; one that was carved from an arena counts them for the arena.
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
  /// Gives one reference back. True when it was the last of a heap node, which is then the
  /// caller's to destroy.
  bool release() const noexcept {
    if (arena_ != nullptr) {
      arena_->release();
      return false;
    }
    return count_.release();
  }
  /// True when the only reference is the caller's and the node may be changed in place.
  bool isUnshared() const noexcept { return arena_ == nullptr && count_.isOne(); }

 protected:
  explicit Node(Arena* arena) noexcept : arena_(arena) {}
  ~Node() = default;
  /// Where the node was carved from; nullptr for one of the heap.
  Arena* arena() const noexcept { return arena_; }

 private:
  Arena* const arena_;
  mutable ReferenceCount<std::uint32_t> count_;
};

}  // namespace orvanta
