#include "Conformance/Subjects.h"
#include "orvanta/Linux/GdImages.h"

namespace orvanta::testing {
namespace {

/// A PNG file of one gray pixel: the bytes around its compressed row, and that row with checksums.
std::string pngFile(std::string_view row) {
  using namespace std::string_view_literals;
  std::string file(
      "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\0\0\0\0\x3A\x7E\x9B\x55\0\0\0\rIDAT"sv);
  return file.append(row).append("\0\0\0\0IEND\xAE\x42\x60\x82"sv);
}
std::string darkFile() {
  using namespace std::string_view_literals;
  return pngFile("\x78\x01\x01\x02\0\xFD\xFF\0\0\0\2\0\1\x7E\x05\x0D\xD2"sv);
}
std::string lightFile() {
  using namespace std::string_view_literals;
  return pngFile("\x78\x01\x01\x02\0\xFD\xFF\0\xFF\1\1\1\0\x60\x87\x12\xB5"sv);
}

struct LinuxImages : LinuxSubject {
  void addDark(const std::string& name) { folder.write(name, darkFile()); }
  void addLight(const std::string& name) { folder.write(name, lightFile()); }
  GdImages service{folder.path()};
};
struct DoubleImages : DoubleSubject {
  void addDark(const std::string& name) { platform.pictures.insert(name); }
  void addLight(const std::string& name) { platform.pictures.insert(name); }
  Images& service = *platform.images();
};

template <class Subject>
class ImagesConformance : public ::testing::Test {
 protected:
  std::string jpeg(std::string_view name) {
    const auto image = subject.service.imageNamed(name);
    return image ? subject.service.JPEGRepresentation(image, 1.0).value_or("") : "no picture";
  }
  Subject subject;
};
using AllImages = ::testing::Types<LinuxImages, DoubleImages>;
TYPED_TEST_SUITE(ImagesConformance, AllImages, SubjectNames);

TYPED_TEST(ImagesConformance, ANameWithoutExtensionMeansPNG) {
  this->subject.addDark("moon.png");
  this->subject.addDark("sun.jpg");
  EXPECT_NE(this->jpeg("moon"), "no picture");
  EXPECT_EQ(this->jpeg("moon"), this->jpeg("moon.png"));
  EXPECT_NE(this->jpeg("sun.jpg"), "no picture");
  for (const char* const name : {"sun", "Moon", "moon.jpg", "moon.pn", "other", ""}) {
    EXPECT_EQ(this->jpeg(name), "no picture") << name;
  }
}

TYPED_TEST(ImagesConformance, LargerVariantsComeFirst) {
  this->subject.addDark("moon.png");
  const std::string plain = this->jpeg("moon");
  this->subject.addLight("moon@2x.png");
  const std::string twice = this->jpeg("moon");
  EXPECT_NE(twice, plain);
  EXPECT_EQ(this->jpeg("moon@2x"), twice);
  EXPECT_EQ(this->jpeg("moon.png"), twice);
  this->subject.addDark("moon@3x.png");
  EXPECT_NE(this->jpeg("moon"), twice);
}

TYPED_TEST(ImagesConformance, NoImageHasNoJPEG) {
  EXPECT_EQ(this->subject.service.JPEGRepresentation(nullptr, 1.0), std::nullopt);
  const auto foreign = Ref<UIImage>::adopt(new UIImage);  // one of another port
  EXPECT_EQ(this->subject.service.JPEGRepresentation(foreign, 1.0), std::nullopt);
}

}  // namespace
}  // namespace orvanta::testing
