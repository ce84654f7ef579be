#include "orvanta/Foundation/internal/Node.h"

#include <algorithm>
#include <new>

namespace orvanta {

namespace {
constexpr std::size_t kMaxBlock = std::size_t{1} << 20;
}  // namespace

Arena::Arena(std::size_t firstBlock) noexcept
    : next_(reinterpret_cast<std::byte*>(this) + sizeof(Arena)),
      end_(next_ + firstBlock),
      nextBlockBytes_(std::clamp(firstBlock, std::size_t{4096}, kMaxBlock)) {}

Arena* Arena::create(std::size_t firstBlock) {
  firstBlock = (firstBlock + kAlignment - 1) & ~(kAlignment - 1);
  return new (::operator new(sizeof(Arena) + firstBlock)) Arena(firstBlock);
}

void Arena::addBlock(std::size_t atLeast) {
  const std::size_t bytes = std::max(atLeast, nextBlockBytes_);
  nextBlockBytes_ = std::min(2 * nextBlockBytes_, kMaxBlock);
  blocks_ = new (::operator new(sizeof(Block) + bytes)) Block{blocks_, bytes};
  next_ = reinterpret_cast<std::byte*>(blocks_) + sizeof(Block);
  end_ = next_ + bytes;
}

void Arena::destroy() noexcept {
  while (blocks_ != nullptr) {
    Block* previous = blocks_->previous;
    ::operator delete(blocks_);
    blocks_ = previous;
  }
  this->~Arena();
  ::operator delete(this);
}

}  // namespace orvanta
