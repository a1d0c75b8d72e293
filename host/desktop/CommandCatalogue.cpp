#include "CommandCatalogue.h"

#include <QCoreApplication>

namespace {

// A menu of the menu bar with its mnemonic, and a menu in it or none.
struct Place {
  char const* menu;
  char const* submenu;
};

struct Row {
  char const* identifier;
  char const* icon;
  Place place;
  int section;
  char const* toolbar;
  char const* shortcut;
  char const* caption;
  char const* toolTip;
  char const* needs;
  bool isForContents = false;  // the shortcut
};

struct Commands {
  Q_DECLARE_TR_FUNCTIONS(Commands)

public:
  static constexpr Place inFile{QT_TR_NOOP("&File"), ""};
  static constexpr Place inEdit{QT_TR_NOOP("&Edit"), ""};
  static constexpr Place inView{QT_TR_NOOP("&View"), ""};
  static constexpr Place inInsert{QT_TR_NOOP("&Insert"), ""};
  static constexpr Place inArrange{QT_TR_NOOP("&Arrange"), ""};
  static constexpr Place inLayer{QT_TR_NOOP("&Layer"), ""};
  static constexpr Place inOpacity{QT_TR_NOOP("&Layer"), QT_TR_NOOP("Opacity")};
  static constexpr Place inHelp{QT_TR_NOOP("&Help"), ""};
  static constexpr Place inAlign{QT_TR_NOOP("&Arrange"), QT_TR_NOOP("Align")};
  static constexpr Place inDistribute{QT_TR_NOOP("&Arrange"), QT_TR_NOOP("Distribute")};
  static constexpr Place inSize{QT_TR_NOOP("&Arrange"), QT_TR_NOOP("Size")};
  static constexpr Place inOrder{QT_TR_NOOP("&Arrange"), QT_TR_NOOP("Order")};

  static constexpr char const* onLayout = QT_TR_NOOP("Layout");
  static constexpr char const* onNavigation = QT_TR_NOOP("Navigation");
  static constexpr char const* onInsert = QT_TR_NOOP("Insert");
  static constexpr char const* onArrange = QT_TR_NOOP("Arrange");
  static constexpr char const* onFile = QT_TR_NOOP("File");
  static constexpr char const* onEdit = QT_TR_NOOP("Edit");
  static constexpr char const* onDraw = QT_TR_NOOP("Draw");
  static constexpr char const* onNone = "";

  static constexpr char const* nothing = QT_TR_NOOP("nothing");
  static constexpr char const* pageShown = QT_TR_NOOP("the page layout shown");
  static constexpr char const* document = QT_TR_NOOP("a document");
  static constexpr char const* pageLayout = QT_TR_NOOP("a page layout");
  static constexpr char const* focusMap = QT_TR_NOOP("a data frame");
  static constexpr char const* selected = QT_TR_NOOP("a selected element");
  static constexpr char const* two = QT_TR_NOOP("two selected elements");
  static constexpr char const* twoOrMargins = QT_TR_NOOP("two selected elements, or one when aligning to margins");
  static constexpr char const* scalable = QT_TR_NOOP("selected elements, no markers and no map surrounds among them");
  static constexpr char const* rows = QT_TR_NOOP("a row of the contents chosen");
  static constexpr char const* layers = QT_TR_NOOP("a layer or a group chosen in the contents");
  static constexpr bool inContents = true;
  static constexpr char const* series = QT_TR_NOOP("a series of pages");
  static constexpr char const* three = QT_TR_NOOP("three selected elements");

  // clang-format off
  static constexpr Row ofPlugin[] = {
      {"Plotvane_Export", "export", inFile, 3, onLayout, "Ctrl+E",
       QT_TR_NOOP("Export Map…"), QT_TR_NOOP("Write the page as an image file"), pageShown},
      {"Plotvane_ChangePageLayout", "change-layout", inFile, 4, onNone, "",
       QT_TR_NOOP("Change Layout…"), QT_TR_NOOP("Replace the page layout by that of another document"), pageShown},
      {"Plotvane_PageSetting", "page-setup", inFile, 4, onLayout, "Ctrl+Shift+P",
       QT_TR_NOOP("Page Setup…"), QT_TR_NOOP("Set paper form, size, orientation, border and background"), pageShown},
      {"Plotvane_ZoomIn", "zoom-in", inView, 1, onNavigation, "Z",
       QT_TR_NOOP("Zoom In"), QT_TR_NOOP("Zoom in by click or rectangle"), pageShown},
      {"Plotvane_ZoomOut", "zoom-out", inView, 1, onNavigation, "Shift+Z",
       QT_TR_NOOP("Zoom Out"), QT_TR_NOOP("Zoom out by click or rectangle"), pageShown},
      {"Plotvane_Pan", "pan", inView, 1, onNavigation, "H",
       QT_TR_NOOP("Pan"), QT_TR_NOOP("Move the page under the view"), pageShown},
      {"Plotvane_ZoomToWhole", "whole-page", inView, 2, onNavigation, "Ctrl+0",
       QT_TR_NOOP("Whole Page"), QT_TR_NOOP("Show the whole page"), pageShown},
      {"Plotvane_ZoomToOrigin", "actual-size", inView, 2, onNavigation, "Ctrl+1",
       QT_TR_NOOP("Actual Size"), QT_TR_NOOP("Show the page in its real size"), pageShown},
      {"Plotvane_ZoomToPreviousExtent", "previous-extent", inView, 2, onNavigation, "Alt+Left",
       QT_TR_NOOP("Previous Extent"), QT_TR_NOOP("Go back to what was shown before"), QT_TR_NOOP("an earlier extent")},
      {"Plotvane_ZoomToNextExtent", "next-extent", inView, 2, onNavigation, "Alt+Right",
       QT_TR_NOOP("Next Extent"), QT_TR_NOOP("Go forward to what was shown after"), QT_TR_NOOP("a later extent")},
      {"Plotvane_MapFrame", "data-frame", inInsert, 1, onInsert, "",
       QT_TR_NOOP("Data Frame"), QT_TR_NOOP("Insert a data frame with an empty map"), pageShown},
      {"Plotvane_Legend", "legend", inInsert, 1, onInsert, "",
       QT_TR_NOOP("Legend"), QT_TR_NOOP("Insert a legend of the focus map"), pageShown},
      {"Plotvane_ScaleBar", "scale-bar", inInsert, 1, onInsert, "",
       QT_TR_NOOP("Scale Bar"), QT_TR_NOOP("Insert a scale bar of the focus map"), pageShown},
      {"Plotvane_ScaleText", "scale-text", inInsert, 1, onInsert, "",
       QT_TR_NOOP("Scale Text"), QT_TR_NOOP("Insert the scale of the focus map as text"), pageShown},
      {"Plotvane_NorthArrow", "north-arrow", inInsert, 1, onInsert, "",
       QT_TR_NOOP("North Arrow…"), QT_TR_NOOP("Insert a north arrow chosen from the style libraries"), pageShown},
      {"Plotvane_Grid", "grid", inInsert, 1, onInsert, "",
       QT_TR_NOOP("Grid…"), QT_TR_NOOP("Add a grid to a data frame"), pageShown},
      {"Plotvane_ConvertToGraphics", "convert-to-graphics", inInsert, 2, onNone, "",
       QT_TR_NOOP("Convert to Graphics"), QT_TR_NOOP("Turn the selected map surrounds into plain graphics"),
       QT_TR_NOOP("a selected map surround")},
      {"Plotvane_LeftAlignment", "align-left", inAlign, 1, onArrange, "Ctrl+Alt+L",
       QT_TR_NOOP("Align Left"), QT_TR_NOOP("Align the left edges of the selected elements"), twoOrMargins},
      {"Plotvane_CenterAlignment", "align-centre", inAlign, 1, onArrange, "Ctrl+Alt+C",
       QT_TR_NOOP("Align Centres"), QT_TR_NOOP("Align the horizontal centres of the selected elements"), twoOrMargins},
      {"Plotvane_RightAlignment", "align-right", inAlign, 1, onArrange, "Ctrl+Alt+R",
       QT_TR_NOOP("Align Right"), QT_TR_NOOP("Align the right edges of the selected elements"), twoOrMargins},
      {"Plotvane_TopAlignment", "align-top", inAlign, 1, onArrange, "Ctrl+Alt+T",
       QT_TR_NOOP("Align Top"), QT_TR_NOOP("Align the top edges of the selected elements"), twoOrMargins},
      {"Plotvane_VerticalCenterAlignment", "align-middle", inAlign, 1, onArrange, "Ctrl+Alt+M",
       QT_TR_NOOP("Align Middles"), QT_TR_NOOP("Align the vertical centres of the selected elements"), twoOrMargins},
      {"Plotvane_BottomAlignment", "align-bottom", inAlign, 1, onArrange, "Ctrl+Alt+B",
       QT_TR_NOOP("Align Bottom"), QT_TR_NOOP("Align the bottom edges of the selected elements"), twoOrMargins},
      {"Plotvane_AlignToMargins", "align-to-margins", inAlign, 2, onArrange, "",
       QT_TR_NOOP("Align to Margins"), QT_TR_NOOP("Align to the page margins instead of to the first selected element"),
       QT_TR_NOOP("the page layout shown and a selected element")},
      {"Plotvane_DistributeHorizontallyElements", "distribute-horizontally", inDistribute, 1, onArrange, "",
       QT_TR_NOOP("Distribute Horizontally"),
       QT_TR_NOOP("Make the horizontal gaps between the selected elements equal"), three},
      {"Plotvane_DistributeVerticallyElements", "distribute-vertically", inDistribute, 1, onArrange, "",
       QT_TR_NOOP("Distribute Vertically"), QT_TR_NOOP("Make the vertical gaps between the selected elements equal"),
       three},
      {"Plotvane_MakeSameSizeElements", "same-size", inSize, 1, onArrange, "",
       QT_TR_NOOP("Same Size"), QT_TR_NOOP("Give the selected elements the size of the last selected one"), two},
      {"Plotvane_MakeSameWidthElements", "same-width", inSize, 1, onArrange, "",
       QT_TR_NOOP("Same Width"), QT_TR_NOOP("Give the selected elements the width of the last selected one"), two},
      {"Plotvane_MakeSameHeightElements", "same-height", inSize, 1, onArrange, "",
       QT_TR_NOOP("Same Height"), QT_TR_NOOP("Give the selected elements the height of the last selected one"), two},
      {"Plotvane_FittoMarginsElements", "fit-to-margins", inSize, 2, onArrange, "",
       QT_TR_NOOP("Fit to Margins"), QT_TR_NOOP("Stretch the selected elements to the page margins"), scalable},
      {"Plotvane_FitWidthtoMarginsElements", "fit-width-to-margins", inSize, 2, onArrange, "",
       QT_TR_NOOP("Fit Width to Margins"), QT_TR_NOOP("Stretch the selected elements to the width between the margins"),
       scalable},
      {"Plotvane_FitHeighttoMarginsElements", "fit-height-to-margins", inSize, 2, onArrange, "",
       QT_TR_NOOP("Fit Height to Margins"),
       QT_TR_NOOP("Stretch the selected elements to the height between the margins"), scalable},
      {"Plotvane_BringToFrontElements", "bring-to-front", inOrder, 1, onArrange, "Ctrl+Shift+]",
       QT_TR_NOOP("Bring to Front"), QT_TR_NOOP("Draw the selected elements above all others"), selected},
      {"Plotvane_BringForwardElements", "bring-forward", inOrder, 1, onArrange, "Ctrl+]",
       QT_TR_NOOP("Bring Forward"), QT_TR_NOOP("Move the selected elements one step up"), selected},
      {"Plotvane_SendBackwardElements", "send-backward", inOrder, 1, onArrange, "Ctrl+[",
       QT_TR_NOOP("Send Backward"), QT_TR_NOOP("Move the selected elements one step down"), selected},
      {"Plotvane_SendToBackElements", "send-to-back", inOrder, 1, onArrange, "Ctrl+Shift+[",
       QT_TR_NOOP("Send to Back"), QT_TR_NOOP("Draw the selected elements below all others"), selected},
      {"Plotvane_LockDataFrame", "lock", inArrange, 2, onNone, "",
       QT_TR_NOOP("Lock Data Frames"), QT_TR_NOOP("Protect all data frames from the mouse"), pageLayout},
      {"Plotvane_UnlockDataFrame", "unlock", inArrange, 2, onNone, "",
       QT_TR_NOOP("Unlock Data Frames"), QT_TR_NOOP("Let the mouse move all data frames again"), pageLayout},
  };

  static constexpr Row ofHost[] = {
      {"Host_New", "new", inFile, 1, onFile, "Ctrl+N",
       QT_TR_NOOP("New"), QT_TR_NOOP("Start a document with an empty page"), nothing},
      {"Host_NewFromData", "new-from-data", inFile, 1, onFile, "Ctrl+Shift+N",
       QT_TR_NOOP("New from Data…"), QT_TR_NOOP("Make a map of files of data, with a page around it"), nothing},
      {"Host_Open", "open", inFile, 1, onFile, "Ctrl+O",
       QT_TR_NOOP("Open…"), QT_TR_NOOP("Open a map document"), nothing},
      {"Host_Save", "save", inFile, 2, onFile, "Ctrl+S",
       QT_TR_NOOP("Save"), QT_TR_NOOP("Save the document"), QT_TR_NOOP("changes that are not saved")},
      {"Host_SaveAs", "save-as", inFile, 2, onNone, "Ctrl+Shift+S",
       QT_TR_NOOP("Save As…"), QT_TR_NOOP("Save the document under another name"), document},
      {"Host_KeepEarlier", "keep-earlier", inFile, 2, onNone, "",
       QT_TR_NOOP("Keep Earlier Version"), QT_TR_NOOP("Let a save keep what the file held before, as a file with “~” behind its name"), nothing},
      {"Host_AllowedFolders", "allowed-folders", inFile, 2, onNone, "",
       QT_TR_NOOP("Allowed Folders…"), QT_TR_NOOP("Name folders of which documents may use files without that being told"), nothing},
      {"Host_IndexLargeFiles", "index-large-files", inFile, 2, onNone, "",
       QT_TR_NOOP("Index Large Files"), QT_TR_NOOP("Keep indexes of large files that have none in the user's cache, so that only what a map shows is read"), nothing},
      {"Host_ExportPdf", "export-pdf", inFile, 3, onNone, "Ctrl+Shift+E",
       QT_TR_NOOP("Export as PDF…"), QT_TR_NOOP("Write the page as a PDF of shapes and texts"), pageLayout},
      {"Host_ExportSvg", "export-svg", inFile, 3, onNone, "",
       QT_TR_NOOP("Export as SVG…"), QT_TR_NOOP("Write the page as an SVG of shapes and texts"), pageLayout},
      {"Host_PrintPreview", "print-preview", inFile, 5, onNone, "",
       QT_TR_NOOP("Print Preview…"), QT_TR_NOOP("Show the sheets of paper as they would be printed"), pageLayout},
      {"Host_Print", "print", inFile, 5, onFile, "Ctrl+P",
       QT_TR_NOOP("Print…"), QT_TR_NOOP("Print the page, on several sheets where it is larger than the paper"), pageLayout},
      {"Host_DocumentProperties", "document-properties", inFile, 4, onNone, "",
       QT_TR_NOOP("Document Properties…"), QT_TR_NOOP("Set what the document says about itself: title, author, keywords"), document},
      {"Host_Series", "series", inFile, 4, onNone, "",
       QT_TR_NOOP("Series of Pages…"), QT_TR_NOOP("Make a page for each feature of a layer"), document},
      {"Host_Undo", "undo", inEdit, 1, onEdit, "Ctrl+Z",
       QT_TR_NOOP("Undo"), QT_TR_NOOP("Take the last change back"), QT_TR_NOOP("a change to take back")},
      {"Host_Redo", "redo", inEdit, 1, onEdit, "Ctrl+Shift+Z",
       QT_TR_NOOP("Redo"), QT_TR_NOOP("Make the change again"), QT_TR_NOOP("a change that was taken back")},
      {"Host_History", "history", inEdit, 1, onNone, "F8",
       QT_TR_NOOP("History"), QT_TR_NOOP("Show or hide the list of the changes, to go back to any of them"), nothing},
      {"Host_Cut", "cut", inEdit, 2, onEdit, "Ctrl+X",
       QT_TR_NOOP("Cut"), QT_TR_NOOP("Move the selected elements to the clipboard"),
       QT_TR_NOOP("a selected element that is not locked")},
      {"Host_Copy", "copy", inEdit, 2, onEdit, "Ctrl+C",
       QT_TR_NOOP("Copy"), QT_TR_NOOP("Copy the selected elements to the clipboard"), selected},
      {"Host_Paste", "paste", inEdit, 2, onEdit, "Ctrl+V",
       QT_TR_NOOP("Paste"), QT_TR_NOOP("Put the elements, the text or the picture of the clipboard on the page"),
       pageShown},
      {"Host_PasteInPlace", "paste-in-place", inEdit, 2, onNone, "Ctrl+Shift+V",
       QT_TR_NOOP("Paste in Place"), QT_TR_NOOP("Put the elements of the clipboard where they were copied"), pageShown},
      {"Host_Duplicate", "duplicate", inEdit, 2, onNone, "Ctrl+D",
       QT_TR_NOOP("Duplicate"), QT_TR_NOOP("Put copies of the selected elements beside them"), selected},
      {"Host_Delete", "delete", inEdit, 2, onEdit, "Del",
       QT_TR_NOOP("Delete"), QT_TR_NOOP("Delete the selected elements"),
       QT_TR_NOOP("a selected element that is not locked")},
      {"Host_Connections", "connections", inEdit, 6, onNone, "",
       QT_TR_NOOP("Connections…"), QT_TR_NOOP("Name databases that layers may come from, and try them"), nothing},
      {"Host_SelectAll", "select-all", inEdit, 3, onNone, "Ctrl+A",
       QT_TR_NOOP("Select All"), QT_TR_NOOP("Select all elements that are neither locked nor hidden"),
       QT_TR_NOOP("the page layout shown, with elements")},
      {"Host_Unselect", "unselect", inEdit, 3, onNone, "Ctrl+Shift+A",
       QT_TR_NOOP("Unselect"), QT_TR_NOOP("Select nothing"), selected},
      {"Host_Select", "select", inView, 1, onNavigation, "V",
       QT_TR_NOOP("Select"), QT_TR_NOOP("Select, move and resize elements"), pageShown},
      {"Host_Identify", "identify", inView, 1, onNavigation, "Q",
       QT_TR_NOOP("Identify"), QT_TR_NOOP("Tell what lies under the mouse: the features of a map, with their attributes"),
       focusMap},
      {"Host_Group", "group", inArrange, 1, onNone, "Ctrl+G",
       QT_TR_NOOP("Group"), QT_TR_NOOP("Make one element of the selected ones"),
       QT_TR_NOOP("two selected elements, no data frames and no map surrounds among them")},
      {"Host_Ungroup", "ungroup", inArrange, 1, onNone, "Ctrl+Shift+G",
       QT_TR_NOOP("Ungroup"), QT_TR_NOOP("Take the selected groups apart"), QT_TR_NOOP("a selected group")},
      {"Host_InsertText", "insert-text", inInsert, 3, onDraw, "T",
       QT_TR_NOOP("Text"), QT_TR_NOOP("Write a text on the page"), pageShown},
      {"Host_InsertPicture", "insert-picture", inInsert, 3, onDraw, "I",
       QT_TR_NOOP("Picture…"), QT_TR_NOOP("Draw the frame of a picture and choose its file"), pageShown},
      {"Host_InsertLine", "insert-line", inInsert, 3, onDraw, "L",
       QT_TR_NOOP("Line"), QT_TR_NOOP("Draw a line: drag it, or click its vertices"), pageShown},
      {"Host_InsertArrow", "insert-arrow", inInsert, 3, onDraw, "A",
       QT_TR_NOOP("Arrow"), QT_TR_NOOP("Draw a line with an arrow head"), pageShown},
      {"Host_InsertPolygon", "insert-polygon", inInsert, 3, onDraw, "G",
       QT_TR_NOOP("Polygon"), QT_TR_NOOP("Draw an area: click its vertices"), pageShown},
      {"Host_InsertRectangle", "insert-rectangle", inInsert, 3, onDraw, "R",
       QT_TR_NOOP("Rectangle"), QT_TR_NOOP("Draw a rectangle"), pageShown},
      {"Host_InsertEllipse", "insert-ellipse", inInsert, 3, onDraw, "E",
       QT_TR_NOOP("Ellipse"), QT_TR_NOOP("Draw an ellipse"), pageShown},
      {"Host_InsertMarker", "insert-marker", inInsert, 3, onDraw, "M",
       QT_TR_NOOP("Marker"), QT_TR_NOOP("Put a marker on the page"), pageShown},
      {"Host_Edit", "edit", inEdit, 4, onNone, "F2",
       QT_TR_NOOP("Edit"), QT_TR_NOOP("Write in the selected text, or change the vertices of the selected line or polygon, or the labels of the selected data frame"),
       QT_TR_NOOP("a selected text, line, polygon or data frame")},
      {"Host_AddLayer", "add-layer", inLayer, 0, onInsert, "Ctrl+L",
       QT_TR_NOOP("Add Layers…"), QT_TR_NOOP("Add the data of files to the map"), pageLayout},
      {"Host_AddTables", "add-tables", inLayer, 0, onNone, "",
       QT_TR_NOOP("Add Layers from Database…"), QT_TR_NOOP("Add tables of a PostGIS database to the map"), pageLayout},
      {"Host_Classify", "classify", inLayer, 3, onNone, "Ctrl+K",
       QT_TR_NOOP("Classes…"), QT_TR_NOOP("Make classes of the layer by the values of a field, and give them colours or sizes"),
       QT_TR_NOOP("a layer chosen in the contents")},
      {"Host_LayoutView", "layout-view", inView, 3, onNone, "F5",
       QT_TR_NOOP("Page Layout"), QT_TR_NOOP("Show the page"), document},
      {"Host_MapView", "map-view", inView, 3, onNone, "F6",
       QT_TR_NOOP("Map"), QT_TR_NOOP("Show the map of the data frame alone"), document},
      {"Host_FirstPage", "first-page", inView, 4, onNone, "Alt+Home",
       QT_TR_NOOP("First Page"), QT_TR_NOOP("Show the first page of the series"), series},
      {"Host_PreviousPage", "previous-page", inView, 4, onNone, "Alt+PgUp",
       QT_TR_NOOP("Previous Page"), QT_TR_NOOP("Show the page before in the series"), series},
      {"Host_NextPage", "next-page", inView, 4, onNone, "Alt+PgDown",
       QT_TR_NOOP("Next Page"), QT_TR_NOOP("Show the next page of the series"), series},
      {"Host_LastPage", "last-page", inView, 4, onNone, "Alt+End",
       QT_TR_NOOP("Last Page"), QT_TR_NOOP("Show the last page of the series"), series},
      {"Host_NoPage", "no-page", inView, 4, onNone, "Alt+0",
       QT_TR_NOOP("No Page of the Series"), QT_TR_NOOP("Show the document as it is stored"), series},
      {"Host_Rulers", "rulers", inView, 5, onNone, "Ctrl+R",
       QT_TR_NOOP("Rulers"), QT_TR_NOOP("Show or hide the rulers, out of which guides are pulled"), nothing},
      {"Host_Guides", "guides", inView, 5, onNone, "Ctrl+;",
       QT_TR_NOOP("Guides"), QT_TR_NOOP("Show or hide the margins, guides and grid of the page"), nothing},
      {"Host_Snapping", "snapping", inView, 5, onNone, "Ctrl+Shift+;",
       QT_TR_NOOP("Snapping"), QT_TR_NOOP("Snap what is moved to edges, centres, guides and equal gaps; Alt switches it off"),
       nothing},
      {"Host_UnplacedLabels", "unplaced-labels", inView, 5, onNone, "",
       QT_TR_NOOP("Unplaced Labels"), QT_TR_NOOP("Show or hide, in red, the labels of the map that found no place"), document},
      {"Host_Contents", "contents", inView, 4, onNone, "F9",
       QT_TR_NOOP("Contents"), QT_TR_NOOP("Show or hide the table of contents"), nothing},
      {"Host_Properties", "properties", inView, 4, onNone, "F4",
       QT_TR_NOOP("Properties"), QT_TR_NOOP("Show or hide the properties of what is selected"), nothing},
      {"Host_AttributeTable", "attribute-table", inLayer, 4, onNone, "F7",
       QT_TR_NOOP("Attribute Table"), QT_TR_NOOP("Show the attributes of the chosen layer's features"),
       QT_TR_NOOP("a chosen layer of features")},
      {"Host_CoordinateSystem", "coordinate-system", inLayer, 4, onNone, "Ctrl+Shift+K",
       QT_TR_NOOP("Coordinate System of the Map…"), QT_TR_NOOP("Show the map in another coordinate system"), focusMap},
      {"Host_ShowLayer", "eye", inLayer, 1, onNone, "Space",
       QT_TR_NOOP("Show"), QT_TR_NOOP("Show or hide the chosen layers and groups"), layers, inContents},
      {"Host_Opacity100", "opacity", inOpacity, 1, onNone, "Alt+1",
       QT_TR_NOOP("100 %"), QT_TR_NOOP("Let the chosen layers cover what lies below"), layers, inContents},
      {"Host_Opacity75", "opacity", inOpacity, 1, onNone, "Alt+2",
       QT_TR_NOOP("75 %"), QT_TR_NOOP("Let a quarter of what lies below shine through"), layers, inContents},
      {"Host_Opacity50", "opacity", inOpacity, 1, onNone, "Alt+3",
       QT_TR_NOOP("50 %"), QT_TR_NOOP("Let half of what lies below shine through"), layers, inContents},
      {"Host_Opacity25", "opacity", inOpacity, 1, onNone, "Alt+4",
       QT_TR_NOOP("25 %"), QT_TR_NOOP("Let three quarters of what lies below shine through"), layers, inContents},
      {"Host_ZoomToLayer", "zoom-in", inLayer, 2, onNone, "Ctrl+Return",
       QT_TR_NOOP("Zoom to Layer"), QT_TR_NOOP("Show all that the chosen layers hold, or all layers of a map"), rows, inContents},
      {"Host_ZoomToScaleRange", "zoom-to-scale", inLayer, 2, onNone, "Ctrl+Shift+Return",
       QT_TR_NOOP("Zoom to Scale Range"), QT_TR_NOOP("Give the map a scale at which the chosen layer shows"),
       QT_TR_NOOP("a layer with limits of scale chosen in the contents"), inContents},
      {"Host_FocusMap", "data-frame", inLayer, 2, onNone, "Ctrl+M",
       QT_TR_NOOP("Work on This Map"), QT_TR_NOOP("Give the chosen map the focus"), QT_TR_NOOP("a map chosen in the contents"), inContents},
      {"Host_LayerProperties", "properties", inLayer, 3, onNone, "Return",
       QT_TR_NOOP("Layer Properties…"), QT_TR_NOOP("Show everything about the chosen layer: source, symbols, labels, scales, file"),
       QT_TR_NOOP("a layer of features chosen in the contents"), inContents},
      {"Host_RepairLayer", "repair", inLayer, 3, onNone, "Ctrl+Shift+L",
       QT_TR_NOOP("Repair…"), QT_TR_NOOP("Find the file of the chosen layer, and those of others beside it"),
       QT_TR_NOOP("a layer chosen in the contents whose data can't be read"), inContents},
      {"Host_RenameLayer", "edit", inLayer, 4, onNone, "F2",
       QT_TR_NOOP("Rename"), QT_TR_NOOP("Write another name of the chosen map, layer or group"), rows, inContents},
      {"Host_CutLayer", "cut", inLayer, 5, onNone, "Ctrl+X",
       QT_TR_NOOP("Cut"), QT_TR_NOOP("Move the chosen layers to the clipboard"), layers, inContents},
      {"Host_CopyLayer", "copy", inLayer, 5, onNone, "Ctrl+C",
       QT_TR_NOOP("Copy"), QT_TR_NOOP("Copy the chosen layers to the clipboard"), layers, inContents},
      {"Host_PasteLayer", "paste", inLayer, 5, onNone, "Ctrl+V",
       QT_TR_NOOP("Paste"), QT_TR_NOOP("Put the layers of the clipboard above the chosen one"), rows, inContents},
      {"Host_DuplicateLayer", "duplicate", inLayer, 5, onNone, "Ctrl+D",
       QT_TR_NOOP("Duplicate"), QT_TR_NOOP("Put copies of the chosen layers above them"), layers, inContents},
      {"Host_RemoveLayer", "delete", inLayer, 5, onNone, "Del",
       QT_TR_NOOP("Remove"), QT_TR_NOOP("Remove the chosen layers from their maps; their files stay"), layers, inContents},
      {"Host_GroupLayers", "group", inLayer, 6, onNone, "Ctrl+G",
       QT_TR_NOOP("Group"), QT_TR_NOOP("Put the chosen layers and groups into a new group"),
       QT_TR_NOOP("layers of one map chosen in the contents"), inContents},
      {"Host_UngroupLayers", "ungroup", inLayer, 6, onNone, "Ctrl+Shift+G",
       QT_TR_NOOP("Ungroup"), QT_TR_NOOP("Take the chosen groups of layers apart"),
       QT_TR_NOOP("a group of layers chosen in the contents"), inContents},
      {"Host_RaiseLayer", "bring-forward", inLayer, 7, onNone, "Alt+Up",
       QT_TR_NOOP("Raise"), QT_TR_NOOP("Move the chosen layers up by one place"), layers, inContents},
      {"Host_LowerLayer", "send-backward", inLayer, 7, onNone, "Alt+Down",
       QT_TR_NOOP("Lower"), QT_TR_NOOP("Move the chosen layers down by one place"), layers, inContents},
      {"Host_EnterGroup", "enter-group", inLayer, 7, onNone, "Alt+Right",
       QT_TR_NOOP("Move into Group"), QT_TR_NOOP("Move the chosen layers into the group below or above them"), layers, inContents},
      {"Host_LeaveGroup", "leave-group", inLayer, 7, onNone, "Alt+Left",
       QT_TR_NOOP("Move out of Group"), QT_TR_NOOP("Move the chosen layers out of their group, above it"),
       QT_TR_NOOP("a layer of a group chosen in the contents"), inContents},
      {"Host_Quit", "quit", inFile, 9, onNone, "Ctrl+Q",
       QT_TR_NOOP("Quit"), QT_TR_NOOP("Close the window"), nothing},
      {"Host_About", "about", inHelp, 1, onNone, "",
       QT_TR_NOOP("About Plotvane"), QT_TR_NOOP("Version and licence"), nothing},
  };
  // clang-format on
};

template <std::size_t count>
QVector<CommandEntry> entriesOf(Row const (&rows)[count]) {
  QVector<CommandEntry> entries;
  for (Row const& row : rows) {
    QString menu = QString::fromUtf8(row.place.menu).remove(QLatin1Char('&'));
    if (*row.place.submenu) menu += QLatin1Char('/') + QString::fromUtf8(row.place.submenu);
    entries.append({QString::fromUtf8(row.identifier), QString::fromUtf8(row.caption), QString::fromUtf8(row.toolTip),
                    QString::fromUtf8(row.icon), QString::fromUtf8(row.shortcut), menu, row.section,
                    QString::fromUtf8(row.toolbar), QString::fromUtf8(row.needs), row.isForContents});
  }
  return entries;
}

QString translatedText(QString const& text) { return Commands::tr(text.toUtf8().constData()); }

}  // namespace

QVector<CommandEntry> commandCatalogue() { return entriesOf(Commands::ofPlugin); }
QVector<CommandEntry> hostCatalogue() { return entriesOf(Commands::ofHost); }

CommandEntry translated(CommandEntry entry) {
  for (QString* const text : {&entry.caption, &entry.toolTip, &entry.needs}) *text = translatedText(*text);
  return entry;
}

QString translatedPlace(QString const& name) { return translatedText(name); }
