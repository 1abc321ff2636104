// A compiled help file: its objects by name.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>

struct chmFile;

class HelpFile {
 public:
  /// Null when there is no such file or it is not whole. A whole one ends with the SHA-256 of all that stands
  /// before, in hexadecimal digits, which the build adds: the decoder trusts what it reads.
  static std::unique_ptr<HelpFile> Open(const QString& path);
  ~HelpFile();
  HelpFile(const HelpFile&) = delete;
  HelpFile& operator=(const HelpFile&) = delete;

  /// Of the objects with this suffix, such as ".html", in the order of their names.
  QStringList Names(const QString& suffix) const;
  /// Empty when there is no such object. Upper and lower case are the same.
  QByteArray Read(const QString& name) const;

 private:
  explicit HelpFile(chmFile* file);
  chmFile* file_;
  QStringList names_;
};
