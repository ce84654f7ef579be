#include <gtest/gtest.h>

#include "orvanta/Simulator/UniformTypes.h"

namespace orvanta::testing {
namespace {

TEST(UniformTypes, MIMETypesHaveTheirIdentifiers) {
  const struct {
    std::string mimeType;
    std::string_view identifier;
  } cases[] = {
      {"image/jpeg", "public.jpeg"},
      {"IMAGE/Jpg", "public.jpeg"},
      {"image/heic", "public.heic"},
      {"audio/x-aiff", "public.aiff-audio"},
      {"audio/vnd.wave", "com.microsoft.waveform-audio"},
      {"audio/mpeg", "public.mp3"},
      {"video/x-mpeg", "public.mpeg"},
      {"video/mp4", "public.mpeg-4"},
      {"video/quicktime", "com.apple.quicktime-movie"},
      {"application/octet-stream", "public.data"},
      // Dynamic ones.
      {"foo/bar", "dyn.agq80q55tf7vgc6u"},
      {"image/x-foo", "dyn.agq80w5pbq7ww88brq3108"},
      {"application/x-foo", "dyn.agq80c6durvy0g2pyrf106p52fzxg852"},
      {"", "dyn.agq8u"},
      {":", "dyn.agq8z2su"},  // "3=\:"
  };
  UniformTypes types;
  for (const auto& [mimeType, identifier] : cases) {
    EXPECT_EQ(types.preferredIdentifierForMIMEType(mimeType), identifier) << mimeType;
  }
  EXPECT_EQ(types.preferredIdentifierForMIMEType(std::nullopt), std::nullopt);
}

}  // namespace
}  // namespace orvanta::testing
