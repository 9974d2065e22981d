#pragma once

#include <QImage>
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

  /// What the page or a part of it is; a notice or a stand-in where that can't be told.
  QVariant loadResource(int type, const QUrl& name) override;

 signals:
  /// A link was chosen that leads to a place of the network.
  void outsideLinkChosen(const QUrl& url);

 private:
  void follow(const QUrl& url);
  void followIntoArchive(const QString& link);
  QVariant resource(int type, const QUrl& name);
  QVariant spareResource(int type) const;
  QString html(const QUrl& url) const;
  QVariant picture(const QUrl& url);
  void turnToReading();
  void goToAnchor(const QUrl& url);

  HelpShelf& shelf_;
  static constexpr int kMostPictures = 1000;
  static constexpr qsizetype kMostPictureBytes = qsizetype{256} << 20;

  /// Made before they are needed: there may be no memory for them then.
  QString failure_;
  QImage missingPicture_;

  bool isRightToLeft_ = false;
  int pictures_ = 0;
  qsizetype pictureBytes_ = 0;
};

}  // namespace tessaly::qt
