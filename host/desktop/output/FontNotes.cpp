#include "FontNotes.h"

#include "host/SysDisplay/TextShaper.h"
#include "host/desktop/DocumentSession.h"
#include "host/desktop/DocumentViews.h"
#include "host/desktop/LayoutView.h"
#include "host/desktop/MapView.h"
#include "host/desktop/NoticeBar.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

constexpr int afterDrawingMs = 500;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FontNotes)
};

// What no font has may be a whole alphabet.
QString shortened(QString const& letters) {
  constexpr int most = 20;
  auto const codes = letters.toUcs4();
  if (codes.size() <= most) return letters;
  return QString::fromUcs4(codes.constData(), most) + QStringLiteral("…");
}

}  // namespace

QStringList fontNotes(SysDisplay::FontTroubles const& troubles) {
  QStringList notes;
  for (QString const& family : troubles.missing)
    notes << Texts::tr("The font %1 is not installed; another one stands in for it.").arg(family);
  for (QString const& family : troubles.lacking)
    notes << Texts::tr("The font lacks a feature that a text asks for: %1.").arg(family);
  if (!troubles.letters.isEmpty())
    notes << Texts::tr("No font that is installed has these letters, so that boxes stand for them: %1")
                 .arg(shortened(troubles.letters));
  return notes;
}

FontWatch::FontWatch(DocumentViews& views, DocumentSession& session, NoticeBar& notice)
    : QObject(&notice), notice_(notice) {
  soon_.setSingleShot(true);
  soon_.setInterval(afterDrawingMs);
  connect(&soon_, &QTimer::timeout, this, &FontWatch::look);
  connect(&session, &DocumentSession::replaced, this, [this] { told_.clear(); });
  views.layoutView().installEventFilter(this);
  views.mapView().installEventFilter(this);
}

bool FontWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint && !soon_.isActive()) soon_.start();
  return QObject::eventFilter(watched, event);
}

void FontWatch::look() {
  QStringList untold;
  for (QString const& note : fontNotes(SysDisplay::takeFontTroubles())) {
    if (told_.contains(note)) continue;
    told_ << note;
    untold << note;
  }
  if (!untold.isEmpty()) notice_.add(untold.join(QLatin1Char('\n')));
}
