#pragma once

#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/layout/DocumentInformation.h"
#include "host/SysCarto/layout/OutputChoices.h"
#include "host/SysCarto/layout/Series.h"

#include <SysCarto/PageLayout.h>

#include <QVector>

namespace SysCarto {

struct SYSCARTO_EXPORT PageLayoutHost {
  /// Takes the place of a layout whose maps it was given: where the focus is open, it stays where it was there, and
  /// surrounds whose map no data frame shows follow the focus map. What the document says about itself stays,
  /// and its series where the layout has none.
  static void succeed(PageLayout& layout, PageLayout const& former);

  static DocumentInformation const& information(PageLayout const& layout);
  static void setInformation(PageLayout& layout, DocumentInformation const& information);
  static OutputChoices const& output(PageLayout const& layout);
  static void setOutput(PageLayout& layout, OutputChoices const& choices);

  static Series const& series(PageLayout const& layout);
  static void setSeries(PageLayout& layout, Series const& series);

  /// Differs for each series that was set, of any layout.
  static quint64 seriesVersion(PageLayout const& layout);

  /// The page of the series that is shown, which no document stores; null while the layout lies as it is stored.
  static std::shared_ptr<ShownPage const> const& shownPage(PageLayout const& layout);
  static void setShownPage(PageLayout& layout, std::shared_ptr<ShownPage const> const& page);

  // The groups in which a person works, each in the one before. The page is what it is without them.

  /// Where a person works: the members of the innermost open group, or the elements of the page.
  static ElementContainer& workplace(PageLayout const& layout);

  /// The element of that handle on the page or, with a depth above 0, among the members of an open group.
  static SysUtility::_ptr_t<Element> find(PageLayout const& layout, ElementHandle handle, int* depth = nullptr);

  /// The container that holds it: the page's, or that of an open group.
  static ElementContainer& holderOf(PageLayout const& layout, ElementHandle handle);

  /// The open groups: the handle of the first one, then of each its place among the members of the one before, from
  /// below.
  static QVector<int> openPath(PageLayout const& layout);

  /// Opens these groups and no others; nothing is selected then where others were open.
  static void openOnly(PageLayout& layout, QVector<int> const& path);

  /// How many groups are open.
  static int openGroups(PageLayout const& layout);

  /// Opens a group of the workplace; nothing is selected then.
  static void openGroup(PageLayout& layout, ElementHandle group);

  /// Closes the innermost one, and selects it.
  static void closeGroup(PageLayout& layout);

  /// Takes over what others made of the open groups. Those that have gone are closed, and what is open in one that has
  /// other members.
  static void followGroups(PageLayout& layout);

  /// When the layout's settings, its page or its elements were last changed outside the history's steps (`ChangeMark`).
  /// The focus counts for nothing: it is told by `GetFocusMap`.
  static quint64 lastChange(PageLayout const& layout);
};

}  // namespace SysCarto
