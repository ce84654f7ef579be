#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

#include "orvanta/Conformance/Subject.h"
#include "orvanta/Platform/UIKit.h"

namespace orvanta::conformance {

/// A subject of ImagesConformance, whose bundle is empty at first.
///
/// `add(name, content)` adds a file to the bundle, also after the first `service()`; the content is
/// that of a PNG file, whatever the name.
template <class Subject>
concept ImagesSubject = SubjectOf<Subject, Images> &&
    requires(Subject subject, std::string string) {
  subject.add(string, string);
};

/// Checks what Images promises:
///
///     struct ImagesOfFolder {
///       void add(const std::string& name, const std::string& content) { folder.write(name,
///       content); } Images& service() { return images; } TestFolder folder; MyImages
///       images{folder.path()};
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyPort, ImagesConformance, ImagesOfFolder);
template <class Subject>
class ImagesConformance : public ::testing::Test {
  static_assert(ImagesSubject<Subject>);

 protected:
  void addDark(const std::string& name) {
    using namespace std::string_view_literals;
    subject.add(name, pngFile("\x78\x01\x01\x02\0\xFD\xFF\0\0\0\2\0\1\x7E\x05\x0D\xD2"sv));
  }
  void addLight(const std::string& name) {
    using namespace std::string_view_literals;
    subject.add(name, pngFile("\x78\x01\x01\x02\0\xFD\xFF\0\xFF\1\1\1\0\x60\x87\x12\xB5"sv));
  }
  std::string jpeg(std::string_view name) {
    Images& images = subject.service();
    const auto image = images.imageNamed(name);
    return image ? images.JPEGRepresentation(image, 1.0).value_or("") : "no picture";
  }
  Subject subject;

 private:
  /// Returns a file of one gray pixel: the bytes around its compressed row, and that row with
  /// checksums.
  static std::string pngFile(std::string_view row) {
    using namespace std::string_view_literals;
    std::string file(
        "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\0\0\0\0\x3A\x7E\x9B\x55\0\0\0\rIDAT"sv);
    return file.append(row).append("\0\0\0\0IEND\xAE\x42\x60\x82"sv);
  }
};
TYPED_TEST_SUITE_P(ImagesConformance);

TYPED_TEST_P(ImagesConformance, ANameWithoutExtensionMeansPNG) {
  this->addDark("moon.png");
  this->addDark("sun.jpg");
  EXPECT_NE(this->jpeg("moon"), "no picture");
  EXPECT_EQ(this->jpeg("moon"), this->jpeg("moon.png"));
  EXPECT_NE(this->jpeg("sun.jpg"), "no picture");
  for (const char* const name : {"sun", "Moon", "moon.jpg", "moon.pn", "other", ""}) {
    EXPECT_EQ(this->jpeg(name), "no picture") << name;
  }
}

TYPED_TEST_P(ImagesConformance, LargerVariantsComeFirst) {
  this->addDark("moon.png");
  const std::string plain = this->jpeg("moon");
  this->addLight("moon@2x.png");
  const std::string twice = this->jpeg("moon");
  EXPECT_NE(twice, plain);
  EXPECT_EQ(this->jpeg("moon@2x"), twice);
  EXPECT_EQ(this->jpeg("moon.png"), twice);
  this->addDark("moon@3x.png");
  EXPECT_NE(this->jpeg("moon"), twice);
}

TYPED_TEST_P(ImagesConformance, NoImageHasNoJPEG) {
  Images& images = this->subject.service();
  EXPECT_EQ(images.JPEGRepresentation(nullptr, 1.0), std::nullopt);
  const auto foreign = Ref<UIImage>::adopt(new UIImage);  // one of another port
  EXPECT_EQ(images.JPEGRepresentation(foreign, 1.0), std::nullopt);
}

REGISTER_TYPED_TEST_SUITE_P(ImagesConformance, ANameWithoutExtensionMeansPNG,
                            LargerVariantsComeFirst, NoImageHasNoJPEG);

}  // namespace orvanta::conformance
