#pragma once

#include "FeatureHighlight.h"

#include <QDockWidget>

class AttributeModel;
class DocumentSession;
class DocumentViews;
class QLabel;
class QLineEdit;
class QProgressBar;
class QTableView;
class QToolButton;

/// The attributes of a layer's features. Those that are chosen are marked in the views.
class AttributePanel final : public QDockWidget {
  Q_OBJECT

public:
  /// Both are borrowed.
  AttributePanel(DocumentSession& session, DocumentViews& views, QWidget* parent);
  ~AttributePanel() override;

  void showLayer(SysUtility::_ptr_t<SysCarto::Map> const& map, SysUtility::_ptr_t<SysCarto::VectorLayer> const& layer);

  /// Shows what has become of the layer.
  void follow();

signals:
  /// A sentence for the person.
  void told(QString const& sentence);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  QWidget* build();
  void open();
  void takeFilter();
  void showState();
  void showProblem(QString const& problem);
  void showProgress(QString const& what, double progress);
  void settle();
  void keepChosen();
  std::vector<qint64> chosen() const;
  void zoomToChosen();
  void copy();

  DocumentSession& session_;
  DocumentViews& views_;
  AttributeModel* const model_;
  QLineEdit* filter_ = nullptr;
  QLabel* count_ = nullptr;
  QLabel* problem_ = nullptr;
  QToolButton* zoom_ = nullptr;
  QTableView* table_ = nullptr;
  QWidget* work_ = nullptr;
  QLabel* what_ = nullptr;
  QProgressBar* progress_ = nullptr;
  SysUtility::_ptr_t<SysCarto::Map> map_;
  SysUtility::_ptr_t<SysCarto::VectorLayer> layer_;
  SysCarto::SourceSettings source_;  // as it was opened
  std::vector<qint64> chosen_;       // before the rows became others
  bool isSettling_ = false;
};
