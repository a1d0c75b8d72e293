#pragma once

#include <SysCarto/IKdxContents.h>
#include <SysCarto/PageLayout.h>
#include <SysUI/IOperationStack.h>

#include <QImage>
#include <QList>
#include <QStringList>

#include <memory>

namespace SysCarto {

/// A map document: a page layout with its maps, and where it is stored. Opening one touches neither the document that a
/// window shows nor the editor.
class SYSCARTO_EXPORT MapDocument {
public:
  /// Empty: no layout, no file.
  MapDocument();
  virtual ~MapDocument();
  MapDocument(MapDocument const&) = delete;
  MapDocument& operator=(MapDocument const&) = delete;

  /// A new document with an empty A4 page. `path` is where `Save` will write it; it may be empty.
  virtual bool New(QString const& path);

  /// Reads a `.kdx` file. Answers false, with the document unchanged and the reasons in `GetErrors`, when it can't be
  /// read. A data source that can't be read does not make it fail: its layer stays empty and `GetWarnings` tells.
  virtual bool Open(QString const& path);

  /// Writes the document to its file, whole or not at all. With `relativePaths`, data sources are stored relative to
  /// the file; with `keepBackup`, the old file is kept as NAME~. Answers false, with the reason in `GetErrors`, and the
  /// old file left as it was, when it can't be written.
  virtual bool Save(bool relativePaths, bool keepBackup);
  virtual bool SaveAs(QString const& path, bool relativePaths, bool keepBackup);

  /// Lets go of the layout and its maps; objects held elsewhere live on.
  virtual void Close();
  virtual SysUtility::_ptr_t<ActiveView> GetActiveView() const;
  virtual void GetMaps(QList<SysUtility::_ptr_t<Map>>& maps) const;
  virtual SysUtility::_ptr_t<Map> GetMap(int index) const;
  virtual int GetMapCount() const;

  /// Empty before `New` or `Open`.
  virtual SysUtility::_ptr_t<PageLayout> GetPageLayout() const;
  virtual SysUtility::_ptr_t<SysUI::IOperationStack> GetOperationStack() const;

  /// A small picture of the page, at most 256 pixels wide and high; null without a page.
  virtual QImage Thumbnail() const;

  /// Whether the file stores its data sources relative to itself.
  virtual bool IsUsesRelativePaths() const;

  /// Takes over the layout that the contents show.
  virtual void ReplaceContents(SysUtility::_ptr_t<IKdxContents> const& contents);

  QString GetPath() const;

  /// Sentences for people, each naming the file, the field and what is wrong; of the last `Open` or `Save`.
  QStringList GetErrors() const;

  /// What the last `Open` passed over: unknown fields, data sources that could not be read.
  QStringList GetWarnings() const;

  /// Whether a save would write what was neither read nor saved before. Costs a look at each element, no more.
  bool isModified() const;

private:
  friend struct MapDocumentHost;
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
