#include "Files.h"
#include "WorkbenchPage.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/SysCarto/layout/MapPicture.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysCarto/projection/GlobeBox.h"
#include "host/desktop/layers/PinnedLabels.h"

#include <SysCarto/Map.h>
#include <SysGeometry/Point.h>

#include <cmath>

using SysCarto::MapFrameElement;

// What a person does with the single labels of a map.
class LabelsByHandTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { prepareApplication(); }

  void labelsAreMovedAndHiddenByHand() {
    QTemporaryDir const folder;
    WorkbenchPage page;
    QVERIFY(page.bench.session().open(sampleIn(folder.path(), "world.kdx")));
    auto& document = page.bench.session().document();
    auto const layer = page.layout()->GetFocusMap()->GetLayers().last();  // the capitals
    _ptr_t<MapFrameElement> frame;
    for (auto const& element : page.container().GetElements())
      if (auto const one = SysUtility::ptr_cast<MapFrameElement>(element)) frame = one;
    auto const labelOf = [&](QString const& text) {
      for (auto const& label : SysCarto::placeLabels(*frame, 300))
        if (auto const found = SysUtility::ptr_cast<SysCarto::TextElement>(label); found && found->text() == text)
          return found->GetGeometry()->GetEnvelope()->GetAnchorPoint();
      return _ptr_t<SysGeometry::Point>();
    };
    auto const pixelOf = [&](double x, double y) {
      auto const& map = *frame->GetMap()->GetDisplayTransformation();
      auto const shown = map.GetFittedBounds(), place = frame->GetEnvelope();
      double const scale = place->GetWidth() / shown->GetWidth();
      return page.pixel(place->GetXMin() + (x - shown->GetXMin()) * scale,
                        place->GetYMin() + (y - shown->GetYMin()) * scale);
    };
    QByteArray const before = SysCarto::MapDocumentHost::text(document);
    auto const from = labelOf("London");
    QVERIFY(from);
    page.container().SelectElement(frame);
    QVERIFY(page.run("Host_Select") && page.run("Host_Edit"));
    page.drag(pixelOf(from->GetX(), from->GetY()), pixelOf(-4e6, 45e5));
    auto const to = labelOf("London");
    QVERIFY(to);
    double const aPixel = frame->GetMap()->GetExtent()->GetWidth() / frame->GetEnvelope()->GetWidth() / 10;
    QVERIFY(std::abs(to->GetX() + 4e6) < aPixel && std::abs(to->GetY() - 45e5) < aPixel);
    QByteArray const moved = SysCarto::MapDocumentHost::text(document);

    // In another system it is where it was on the ground.
    QStringList told;
    auto const placeOf = [&](QString const& system) {
      auto const pins = ptr_cast<SysCarto::VectorLayer>(layer)->labelSettings().pinned;
      return pins.size() == 1 ? SysCarto::degreesAt({pins[0].x, pins[0].y}, system) : std::nullopt;
    };
    auto const there = placeOf("ESRI:54042");
    QCOMPARE(SysCarto::Editable::set(
                 document, {SysCarto::Editable::map(frame->GetMap())}, {"coordinateSystem"},
                 [](QJsonValue const&) { return "EPSG:3857"; }, told),
             QString());
    auto const now = placeOf("EPSG:3857");
    QVERIFY(there && now && QLineF(*there, *now).length() < 1e-6);
    document.GetOperationStack()->Undo();
    QCOMPARE(SysCarto::MapDocumentHost::text(document), moved);

    page.key(Qt::Key_Delete);  // the one that was moved is the chosen one
    QVERIFY(!labelOf("London"));
    QVERIFY(page.now(*frame) && labelOf("Madrid"));
    document.GetOperationStack()->Undo();
    QCOMPARE(SysCarto::MapDocumentHost::text(document), moved);
    document.GetOperationStack()->Undo();
    QCOMPARE(SysCarto::MapDocumentHost::text(document), before);

    QStringList warnings;
    auto const thing = SysCarto::Editable::layer(frame->GetMap(), layer);
    QVERIFY(PinnedLabels::read("nobody", "1,2")->giveTo(document, thing, warnings).contains("“nobody”"));
    for (char const* const text : {"1", "1,2,3,4", "1,x", ""}) QVERIFY(!PinnedLabels::read("27", text));
  }
};

QTEST_MAIN(LabelsByHandTest)
#include "tst_labels_by_hand.moc"
