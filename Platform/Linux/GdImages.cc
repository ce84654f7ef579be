#include "orvanta/Linux/GdImages.h"

#include <fcntl.h>
#include <png.h>
#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "orvanta/Linux/FileDescriptor.h"
#include "orvanta/Linux/GdLibrary.h"

namespace orvanta {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxNameBytes = 255;
constexpr std::size_t kMaxFileBytes = std::size_t{32} << 20U;
constexpr std::uint32_t kMaxSide = 4096;
constexpr int kWhite = 0xFFFFFF;
constexpr std::string_view kPNGMagic = "\x89PNG\r\n\x1A\n";

const GdLibrary& gd() { return GdLibrary::loaded(); }

struct BitmapDeleter {
  void operator()(gdImage* bitmap) const { gd().gdImageDestroy(bitmap); }
};
using Bitmap = std::unique_ptr<gdImage, BitmapDeleter>;

class GdImage final : public UIImage {
 public:
  explicit GdImage(Bitmap bitmap) : bitmap_(std::move(bitmap)) {}
  gdImage* bitmap() const { return bitmap_.get(); }

 private:
  Bitmap bitmap_;
};

// ---- Sizes -------------------------------------------------------------------
//
// Read from the file's first bytes, because the decoders allocate all pixels before they read one:
// a header of some 30 bytes can ask for gigabytes. libpng's call for a header is too late, too: it
// also reads everything else before the pixels. Some decoders accept truncated files; where that
// shows, the size is zero and the file counts as damaged.

struct Size {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  bool isAllowed() const {
    return width > 0 && height > 0 && width <= kMaxSide && height <= kMaxSide;
  }
};

/// A byte view that reads as zeros past its end.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}
  std::size_t size() const { return bytes_.size(); }
  bool have(std::size_t at, std::string_view text) const {
    return at <= bytes_.size() && bytes_.substr(at).starts_with(text);
  }
  bool contains(std::string_view text, std::size_t from) const {
    return bytes_.find(text, from) != std::string_view::npos;
  }
  std::uint32_t byte(std::size_t at) const {
    return at < bytes_.size() ? static_cast<unsigned char>(bytes_[at]) : 0;
  }
  std::uint32_t big16(std::size_t at) const { return byte(at) << 8U | byte(at + 1); }
  std::uint32_t big32(std::size_t at) const { return big16(at) << 16U | big16(at + 2); }
  std::uint32_t little16(std::size_t at) const { return byte(at) | byte(at + 1) << 8U; }
  std::uint32_t little24(std::size_t at) const { return little16(at) | byte(at + 2) << 16U; }
  std::uint32_t little32(std::size_t at) const { return little16(at) | little16(at + 2) << 16U; }

 private:
  std::string_view bytes_;
};

Size sizeOfPNG(const Bytes& file) {
  if (!file.have(12, "IHDR")) return {};
  return {file.big32(16), file.big32(20)};
}

/// Size in the frame header, which follows whole segments with nothing between them. Zero without
/// an end marker, which the decoder would accept.
Size sizeOfJPEG(const Bytes& file) {
  for (std::size_t at = 2; file.byte(at) == 0xFF;) {
    while (file.byte(at) == 0xFF) ++at;
    const std::uint32_t marker = file.byte(at++);
    const bool isBare = marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7);
    const bool isFrame =
        marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
    const bool isEnd = marker == 0 || marker == 0xD9 || marker == 0xDA;
    if (isFrame && !file.contains("\xFF\xD9", at)) return {};
    if (isFrame) return {file.big16(at + 5), file.big16(at + 3)};
    if (isEnd) break;
    if (!isBare) at += std::max<std::size_t>(file.big16(at), 2);
  }
  return {};
}

/// Logical screen size, to which the decoder confines the frame that it allocates. Zero if the
/// first frame is truncated, which the decoder would accept.
Size sizeOfGIF(const Bytes& file) {
  const auto colorTableBytes = [&](std::size_t at) -> std::size_t {
    const std::uint32_t flags = file.byte(at);
    return (flags & 0x80U) != 0 ? std::size_t{3} << ((flags & 7U) + 1) : 0;
  };
  std::size_t at = 13 + colorTableBytes(10);
  while (at < file.size()) {
    const bool isFrame = file.byte(at) == ',';
    if (isFrame) {
      at += 11 + colorTableBytes(at + 9);
    } else if (file.byte(at) == '!') {
      at += 2;
    } else {
      return {};
    }
    while (file.byte(at) != 0) at += 1 + file.byte(at);
    if (isFrame) return at < file.size() ? Size{file.little16(6), file.little16(8)} : Size();
    ++at;
  }
  return {};
}

Size sizeOfWebP(const Bytes& file) {
  if (file.have(12, "VP8X")) return {file.little24(24) + 1, file.little24(27) + 1};
  if (file.have(12, "VP8L")) {
    const std::uint32_t bits = file.little32(21);
    return {(bits & 0x3FFFU) + 1, (bits >> 14U & 0x3FFFU) + 1};
  }
  if (file.have(12, "VP8 ")) return {file.little16(26) & 0x3FFFU, file.little16(28) & 0x3FFFU};
  return {};
}

// ---- Decoding ----------------------------------------------------------------

std::span<int> row(const gdImage& bitmap, int y) {
  return {bitmap.tpixels[y], static_cast<std::size_t>(bitmap.sx)};
}

/// Removes the compressed text chunks before the pixels. libpng would unpack each to up to 8 MB and
/// keep a thousand of them, whatever it is asked for.
std::string withoutCompressedTexts(std::string_view file) {
  const Bytes bytes(file);
  std::size_t at = kPNGMagic.size();
  std::string kept(file.substr(0, at));
  while (at < file.size() && !bytes.have(at + 4, "IDAT")) {
    constexpr std::uint64_t kOverhead = 12;  // length, type and checksum
    const auto size = static_cast<std::size_t>(
        std::min<std::uint64_t>(kOverhead + bytes.big32(at), file.size() - at));
    const bool isCompressedText = bytes.have(at + 4, "zTXt") || bytes.have(at + 4, "iTXt");
    if (!isCompressedText) kept += file.substr(at, size);
    at += size;
  }
  return kept.append(file.substr(at));
}

/// Uses libpng rather than libgd, which prints libpng's warnings to stderr.
gdImage* decodePNG(int size, void* bytes) {
  const std::string png =
      withoutCompressedTexts({static_cast<const char*>(bytes), static_cast<std::size_t>(size)});
  png_image file{};
  file.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_memory(&file, png.data(), png.size()) == 0) return nullptr;
  file.format = PNG_FORMAT_RGBA;
  file.flags |= PNG_IMAGE_FLAG_16BIT_sRGB;
  std::vector<png_byte> pixels(PNG_IMAGE_SIZE(file));
  if (png_image_finish_read(&file, nullptr, pixels.data(), 0, nullptr) == 0) return nullptr;

  Bitmap bitmap(
      gd().gdImageCreateTrueColor(static_cast<int>(file.width), static_cast<int>(file.height)));
  if (!bitmap) return nullptr;
  const png_byte* pixel = pixels.data();
  for (int y = 0; y < gdImageSY(bitmap); ++y) {
    for (int& color : row(*bitmap, y)) {
      color = gdTrueColorAlpha(pixel[0], pixel[1], pixel[2], gdAlphaMax - pixel[3] / 2);
      pixel += 4;
    }
  }
  return bitmap.release();
}

gdImage* decodeGIF(int size, void* bytes) { return gd().gdImageCreateFromGifPtr(size, bytes); }

struct Format {
  std::string_view magic;
  std::size_t magicAt;
  Size (*size)(const Bytes&);
  gdImage* (*decode)(int size, void* bytes);
};
constexpr Format kFormats[] = {
    {kPNGMagic, 0, sizeOfPNG, decodePNG},
    {"\xFF\xD8\xFF", 0, sizeOfJPEG,
     [](int size, void* bytes) { return gd().gdImageCreateFromJpegPtrEx(size, bytes, 0); }},
    {"GIF87a", 0, sizeOfGIF, decodeGIF},
    {"GIF89a", 0, sizeOfGIF, decodeGIF},
    {"WEBP", 8, sizeOfWebP,
     [](int size, void* bytes) { return gd().gdImageCreateFromWebpPtr(size, bytes); }},
};

/// Returns the color as it looks on white, since JPEG has no transparency. libgd's alpha runs from
/// 0, opaque, to 127.
int onWhite(int color) {
  const int alpha = gdTrueColorGetAlpha(color);
  if (alpha == gdAlphaOpaque) return color;
  const auto blended = [&](int channel) {
    return (channel * (gdAlphaMax - alpha) + 255 * alpha + gdAlphaMax / 2) / gdAlphaMax;
  };
  return gdTrueColor(blended(gdTrueColorGetRed(color)), blended(gdTrueColorGetGreen(color)),
                     blended(gdTrueColorGetBlue(color)));
}

Bitmap decoded(std::string file) {
  const Bytes bytes(file);
  const auto* const format =
      std::find_if(std::begin(kFormats), std::end(kFormats),
                   [&](const Format& f) { return bytes.have(f.magicAt, f.magic); });
  if (format == std::end(kFormats) || !format->size(bytes).isAllowed()) return nullptr;

  Bitmap bitmap(format->decode(static_cast<int>(file.size()), file.data()));
  if (!bitmap || gd().gdImagePaletteToTrueColor(bitmap.get()) == 0) return nullptr;
  for (int y = 0; y < gdImageSY(bitmap); ++y) {
    for (int& color : row(*bitmap, y)) {
      color = color == bitmap->transparent ? kWhite : onWhite(color);
    }
  }
  return bitmap;
}

// ---- Files -------------------------------------------------------------------

bool isPlainName(std::string_view name) {
  return !name.empty() && name.size() <= kMaxNameBytes && name != "." && name != ".." &&
         name.find_first_of(std::string_view("/\\\0", 3)) == std::string_view::npos;
}

/// Reads a regular file that is inside the folder once links are resolved; empty otherwise.
std::string content(const fs::path& folder, const std::string& name) {
  std::error_code error;
  const fs::path root = fs::canonical(folder, error);
  if (error) return {};
  const fs::path path = fs::canonical(root / name, error);
  if (error) return {};
  const fs::path below = path.lexically_relative(root);
  if (below.empty() || *below.begin() == "..") return {};

  // The file may have been replaced since: by a link, or by a pipe that would block the open.
  const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!file.isOpen() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode) ||
      std::cmp_greater(status.st_size, kMaxFileBytes)) {
    return {};
  }
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t count = file.read(bytes.data() + filled, bytes.size() - filled);
    if (count <= 0) break;
    filled += static_cast<std::size_t>(count);
  }
  bytes.resize(filled);
  return bytes;
}

}  // namespace

Ref<UIImage> GdImages::imageNamed(std::string_view name) {
  if (resources_.empty() || !isPlainName(name)) return nullptr;
  const auto asImage = [](Bitmap bitmap) -> Ref<UIImage> {
    if (!bitmap) return nullptr;
    return Ref<GdImage>::adopt(new GdImage(std::move(bitmap)));
  };

  const auto dot = name.rfind('.');
  const bool hasExtension = dot != std::string_view::npos && dot != 0 && dot + 1 != name.size();
  const std::string_view stem = hasExtension ? name.substr(0, dot) : name;
  const std::string_view extension = hasExtension ? name.substr(dot) : ".png";
  for (const char* const scale : {"@3x", "@2x", ""}) {
    if (Bitmap bitmap =
            decoded(content(resources_, std::string(stem).append(scale).append(extension)))) {
      return asImage(std::move(bitmap));
    }
  }
  return nullptr;
}

std::optional<std::string> GdImages::JPEGRepresentation(const Ref<UIImage>& image,
                                                        double compressionQuality) {
  const auto* const gdImage = dynamic_cast<const GdImage*>(image.get());
  if (gdImage == nullptr) return std::nullopt;
  const double quality = compressionQuality >= 0 ? std::min(compressionQuality, 1.0) : 0;  // or NaN
  int size = 0;
  const std::unique_ptr<void, void (*)(void*)> bytes(
      gd().gdImageJpegPtr(gdImage->bitmap(), &size, static_cast<int>(std::lround(quality * 100))),
      gd().gdFree);
  if (!bytes) return std::nullopt;
  return std::string(static_cast<const char*>(bytes.get()), static_cast<std::size_t>(size));
}

}  // namespace orvanta
