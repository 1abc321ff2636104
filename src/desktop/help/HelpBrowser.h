// Shows the pages of a help file in the colours of the desktop.
#pragma once

#include <QStringList>
#include <QTextBrowser>

#include "desktop/help/HelpFile.h"

class HelpBrowser : public QTextBrowser {
 public:
  /// The file must outlive the browser.
  HelpBrowser(const HelpFile& file, QWidget* parent);

  /// Shows "page.html" or "page.html#place".
  void Go(const QString& page);
  /// The page of an address in the help file, without the place in it.
  static QString PageOf(const QUrl& url);

  /// Marks the words wherever they stand on the page and brings the first into sight.
  void Highlight(const QStringList& words);

  /// Larger or smaller by so many points; 0 is the size of the desktop again.
  void ScaleText(int steps);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  /// Links that lead out of the help file open in the web browser.
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void TakeColours();
  int PictureRoom() const;
  void Mark();
  void Redraw();

  const HelpFile& file_;
  QStringList words_;      // marked on the page
  int widestPicture_ = 0;  // of the page, in pixels of its own
  int pictureRoom_ = 0;    // that the pictures were fitted into
};
