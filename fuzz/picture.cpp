// Any bytes are the file of a picture that is then drawn, or answer a sentence. An SVG is left to the target for those.

#include "Fuzz.h"
#include "MemoryFile.h"

#include "host/SysCarto/elements/EmbeddedPicture.h"
#include "host/SysCarto/elements/PictureElement.h"

using SysUtility::make;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  fuzz::start(*argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
  static MemoryFile const file;
  fuzz::require(file.hold(bytes, size));
  QString const data =
      SysCarto::embeddedPicture(QByteArray(reinterpret_cast<char const*>(bytes), static_cast<int>(size)));
  if (data.startsWith(QLatin1String("data:image/svg"))) return 0;
  SysCarto::PictureElement linked, embedded;
  linked.setPath(file.path());
  embedded.setSource(QString(), data);
  fuzz::require(linked.problem().isEmpty() == embedded.problem().isEmpty());
  for (SysCarto::PictureElement* const element : {&linked, &embedded})
    fuzz::onCanvas(64, [&](QPainter& painter, auto const& transformation) {
      element->SetGeometry(make<SysGeometry::Envelope>(4.0, 4.0, 60.0, 40.0));
      element->setAngle(element == &linked ? 0 : 30);
      element->Draw(painter, transformation, nullptr);
    });
  return 0;
}
