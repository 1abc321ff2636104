// See HelpFile.h.
#include "desktop/help/HelpFile.h"

#include <chm_lib.h>

#include <QCryptographicHash>
#include <QFile>

namespace {

constexpr qsizetype DigestLength = 64;
constexpr LONGUINT64 MostBytes = LONGUINT64{32} << 20;  // of one object: more is no page or picture of ours

bool IsWhole(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray bytes = file.readAll();
  const QByteArray digest =
      QCryptographicHash::hash(bytes.chopped(qMin(DigestLength, bytes.size())), QCryptographicHash::Sha256);
  return bytes.endsWith(digest.toHex());
}

int Collect(chmFile*, chmUnitInfo* object, void* names) {
  static_cast<QStringList*>(names)->append(QString::fromUtf8(object->path).mid(1));
  return CHM_ENUMERATOR_CONTINUE;
}

}  // namespace

std::unique_ptr<HelpFile> HelpFile::Open(const QString& path) {
  chmFile* const file = IsWhole(path) ? chm_open(QFile::encodeName(path).constData()) : nullptr;
  return std::unique_ptr<HelpFile>(file == nullptr ? nullptr : new HelpFile(file));
}

HelpFile::HelpFile(chmFile* file) : file_(file) {
  chm_enumerate(file_, CHM_ENUMERATE_NORMAL | CHM_ENUMERATE_FILES, Collect, &names_);
  names_.sort(Qt::CaseInsensitive);
}

HelpFile::~HelpFile() {
  chm_close(file_);
}

QStringList HelpFile::Names(const QString& suffix) const {
  QStringList found;
  for (const QString& name : names_) {
    if (name.endsWith(suffix, Qt::CaseInsensitive)) found << name;
  }
  return found;
}

QByteArray HelpFile::Read(const QString& name) const {
  chmUnitInfo object{};
  const QByteArray path = "/" + name.toUtf8();
  if (path.size() > CHM_MAX_PATHLEN) return {};
  if (chm_resolve_object(file_, path.constData(), &object) != CHM_RESOLVE_SUCCESS) return {};
  if (object.length > MostBytes) return {};
  QByteArray bytes(static_cast<qsizetype>(object.length), '\0');
  const LONGINT64 read = chm_retrieve_object(file_, &object, reinterpret_cast<unsigned char*>(bytes.data()),
                                             0, static_cast<LONGINT64>(bytes.size()));
  return read == bytes.size() ? bytes : QByteArray();
}
