#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <zlib.h>

#include <cmath>
#include <cstdint>

#include "orvanta/Linux/GdImages.h"
#include "support/TemporaryFolder.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

std::string big32(std::uint32_t number) {
  std::string bytes;
  for (const unsigned shift : {24U, 16U, 8U, 0U}) bytes += static_cast<char>(number >> shift);
  return bytes;
}

std::string chunk(const std::string& type, const std::string& data) {
  std::uint32_t sum = ~0U;
  for (const char c : type + data) {
    sum ^= static_cast<unsigned char>(c);
    for (int bit = 0; bit < 8; ++bit) sum = (sum & 1U) != 0 ? sum >> 1U ^ 0xEDB88320U : sum >> 1U;
  }
  return big32(static_cast<std::uint32_t>(data.size())) + type + data + big32(~sum);
}

const std::string kPNGMagic = "\x89PNG\r\n\x1A\n";

std::string header(std::uint32_t width, std::uint32_t height, char colorType) {
  return chunk("IHDR", big32(width) + big32(height) + '\x08' + colorType + "\0\0\0"s);
}

/// A PNG file of one row; the color type is 2 for RGB, 6 for RGBA. `extra` are chunks before the
/// pixels.
std::string png(std::uint32_t width, char colorType, const std::string& pixels,
                const std::string& extra = "") {
  const std::string row = '\0' + pixels;
  std::uint32_t a = 1;
  std::uint32_t b = 0;
  for (const char c : row) {
    a = (a + static_cast<unsigned char>(c)) % 65521;
    b = (b + a) % 65521;
  }
  const auto low = static_cast<char>(row.size());
  const auto high = static_cast<char>(row.size() >> 8U);
  const std::string stored = "\x78\x01\x01"s + low + high + static_cast<char>(~low) +
                             static_cast<char>(~high) + row + big32(b << 16U | a);
  return kPNGMagic + header(width, 1, colorType) + extra + chunk("IDAT", stored) +
         chunk("IEND", "");
}

/// One pixel: a color of the table, which is red and green. The first is transparent.
std::string gif(bool green) {
  return "GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\xFF\0!\xF9\4\1\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2"s +
         (green ? "L" : "D") + "\1\0;"s;
}

const std::string kWebP =  // one transparent pixel
    "RIFF\x1A\0\0\0WEBPVP8L\x0D\0\0\0\x2F\0\0\0\x10\x07\x10\x11\x11\x88\x88\xFE\x07\0"s;

const std::string kRed = png(1, 2, "\xFF\0\0"s);
const std::string kGreen = png(1, 2, "\0\xFF\0"s);
const std::string kWhite = png(1, 2, "\xFF\xFF\xFF"s);

class GdImagesTest : public ::testing::Test {
 protected:
  GdImagesTest() { folder_.write("star.png", kRed); }
  std::optional<std::string> jpeg(std::string_view name, double quality = 1) {
    return images_.JPEGRepresentation(images_.imageNamed(name), quality);
  }
  /// A file's content, decoded and encoded as JPEG; none if it is not an image.
  std::optional<std::string> encoded(const std::string& content) {
    fs::remove(folder_ / "probe.bin");
    folder_.write("probe.bin", content);
    return jpeg("probe.bin");
  }
  bool exists(std::string_view name) { return bool(images_.imageNamed(name)); }

  TemporaryFolder folder_;
  GdImages images_{folder_.path()};
};

TEST_F(GdImagesTest, SkipsADamagedVariant) {
  folder_.write("icon@2x.png", kGreen);
  folder_.write("icon@3x.png", "broken");
  EXPECT_EQ(jpeg("icon"), encoded(kGreen));
}

TEST_F(GdImagesTest, BlendsTransparencyWithWhite) {
  const auto white = encoded(kWhite);
  ASSERT_TRUE(white);
  EXPECT_NE(encoded(kRed), white);
  EXPECT_EQ(encoded(png(1, 6, "\xFF\0\0\0"s)), white);
  EXPECT_EQ(encoded(png(1, 6, "\xFF\0\0\xFF"s)), encoded(kRed));
  EXPECT_EQ(encoded(png(1, 2, "\xFF\0\0"s, chunk("tRNS", "\0\xFF\0\0\0\0"s))), white);
  EXPECT_EQ(encoded(png(1, 6, "\0\0\0\x80"s)), encoded(png(1, 2, "\x7E\x7E\x7E")));
  EXPECT_EQ(encoded(gif(false)), white);
  EXPECT_EQ(encoded(gif(true)), encoded(kGreen));
  EXPECT_EQ(encoded(kWebP), white);
}

TEST_F(GdImagesTest, JPEGFollowsTheQuality) {
  const auto best = jpeg("star", 1);
  ASSERT_TRUE(best);
  EXPECT_TRUE(best->starts_with("\xFF\xD8\xFF"));
  EXPECT_EQ(jpeg("star", 7), best);
  EXPECT_NE(jpeg("star", 0), best);
  EXPECT_EQ(jpeg("star", -1), jpeg("star", 0));
  EXPECT_EQ(jpeg("star", std::nan("")), jpeg("star", 0));
  EXPECT_TRUE(encoded(*best));
}

TEST_F(GdImagesTest, FindsNothingOutsideTheFolder) {
  const TemporaryFolder other;
  other.write("secret.png", kRed);
  fs::create_directory(folder_ / "sub");
  folder_.write("sub/inner.png", kRed);
  folder_.write("icon.png", kRed);
  fs::create_symlink(other / "secret.png", folder_ / "escape.png");
  fs::create_symlink(folder_ / "sub/inner.png", folder_ / "inside.png");
  fs::create_symlink("loop.png", folder_ / "loop.png");
  fs::create_directory(folder_ / "folder.png");
  ASSERT_EQ(::mkfifo((folder_ / "pipe.png").c_str(), 0600), 0);

  const std::string up = "../" + other.path().filename().string() + "/secret.png";
  for (const std::string& name :
       {""s, "."s, ".."s, "/"s, up, (other / "secret.png").string(), "sub/inner.png"s,
        "./icon.png"s, "sub\\inner.png"s, "icon.png\0"s, "icon\0.png"s, "escape.png"s, "loop"s,
        "folder"s, "pipe"s, std::string(255, 'x'), std::string(256, 'x'), "icon.jpg"s}) {
    EXPECT_FALSE(exists(name)) << name;
  }
  EXPECT_TRUE(exists("inside"));
  EXPECT_TRUE(exists("icon"));

  fs::create_directory_symlink(folder_.path(), other / "linked");
  EXPECT_TRUE(GdImages(other / "linked").imageNamed("icon"));
}

TEST_F(GdImagesTest, RejectsHugeImagesByTheirHeaders) {
  EXPECT_TRUE(encoded(png(4096, 2, std::string(12288, 'x'))));
  EXPECT_FALSE(encoded(png(4097, 2, std::string(12291, 'x'))));
  const std::string large = "\xFF\x7F"s;  // over the limit in either byte order
  std::string hugeGIF = gif(true);
  std::string hugeWebP = kWebP;
  std::string hugeJPEG = *jpeg("star");
  hugeGIF.replace(6, 2, large);
  hugeWebP.replace(21, 2, large);
  hugeJPEG.replace(hugeJPEG.find("\xFF\xC0") + 5, 2, large);
  const std::string extended = "RIFF\x12\0\0\0WEBPVP8X\x0A\0\0\0\0\0\0\0\xFF\xFF\xFF\xFF\xFF\xFF"s;
  for (const std::string& file :
       {kPNGMagic + header(0x7FFFFFFF, 0x7FFFFFFF, 6), kPNGMagic + header(60000, 60000, 2),
        kPNGMagic + header(0, 1, 2), hugeGIF, hugeWebP, hugeJPEG, extended}) {
    EXPECT_FALSE(encoded(file));
  }
}

TEST_F(GdImagesTest, DoesNotUnpackTextsOfPNGFiles) {
  const std::string text(7'900'000, ' ');
  uLongf size = ::compressBound(text.size());
  std::string packed(size, '\0');
  ASSERT_EQ(::compress(reinterpret_cast<Bytef*>(packed.data()), &size,
                       reinterpret_cast<const Bytef*>(text.data()), text.size()),
            Z_OK);
  packed.resize(size);
  std::string texts;
  for (int i = 0; i < 15; ++i) {
    texts += chunk("zTXt", "key\0\0"s + packed) + chunk("iTXt", "key\0\1\0\0\0"s + packed);
  }
  const auto red = encoded(kRed);
  const auto peakMemory = [] {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;  // KiB
  };
  const auto before = peakMemory();
  EXPECT_EQ(encoded(png(1, 2, "\xFF\0\0"s, texts)), red);
  EXPECT_LT(peakMemory() - before, 100'000);
}

TEST_F(GdImagesTest, DoesNotReadFilesOverTheLimit) {
  folder_.write("big.png", kRed);
  fs::resize_file(folder_ / "big.png", 32U << 20U);
  EXPECT_TRUE(exists("big"));  // zeros after the end do not matter
  fs::resize_file(folder_ / "big.png", (32U << 20U) + 1);
  EXPECT_FALSE(exists("big"));
}

TEST_F(GdImagesTest, RejectsDamagedFilesAndPrintsNothing) {
  ::testing::internal::CaptureStderr();
  ::testing::internal::CaptureStdout();
  const struct {
    std::string file;
    std::size_t tail;  // an end marker that decoding does not need
  } files[] = {{kRed, 12}, {gif(true), 1}, {kWebP, 0}, {*jpeg("star"), 0}};
  for (const auto& [file, tail] : files) {
    ASSERT_TRUE(encoded(file));
    std::size_t accepted = 0;
    for (std::size_t size = 0; size + tail < file.size(); ++size) {
      if (encoded(file.substr(0, size))) ++accepted;
    }
    EXPECT_EQ(accepted, 0U) << file.substr(0, 6);
    for (std::size_t i = 0; i < file.size(); ++i) {
      std::string damaged = file;
      damaged[i] = static_cast<char>(~damaged[i]);
      encoded(damaged);
    }
  }
  for (const char* const text : {"\xFF\xD8\xFF", "GIF89a", "RIFF....WEBPVP8 ", "<svg/>"}) {
    EXPECT_FALSE(encoded(text)) << text;
  }
  encoded(png(1, 2, "\xFF\0\0"s, chunk("iCCP", "broken") + chunk("gAMA", "x")));
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace orvanta::testing
