#pragma once

#include <QTextBrowser>

#include "tessaly/hosts/qt/help/HelpShelf.h"

namespace tessaly::qt {

/// Shows pages of the shelf's files. All that a page needs comes from its file: no other file is read, and
/// nothing of a network. Links into help files are followed here, those to the outside are told.
class PageView : public QTextBrowser {
  Q_OBJECT

 public:
  PageView(HelpShelf& shelf, QWidget* parent);

  /// Shows an address of the shelf, anew where it is the one that is shown.
  void showPage(const QUrl& url);

  QVariant loadResource(int type, const QUrl& name) override;

 signals:
  /// A link was chosen that leads to a place of the network.
  void outsideLinkChosen(const QUrl& url);

 private:
  void follow(const QUrl& url);
  void followIntoArchive(const QString& link);
  QString html(const QUrl& url) const;
  QVariant picture(const QUrl& url);
  void turnToReading();

  HelpShelf& shelf_;
  static constexpr int kMostPictures = 1000;
  static constexpr qsizetype kMostPictureBytes = qsizetype{256} << 20;

  bool isRightToLeft_ = false;
  int pictures_ = 0;
  qsizetype pictureBytes_ = 0;
};

}  // namespace tessaly::qt
