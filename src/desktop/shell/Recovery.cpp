// See Recovery.h.
#include "desktop/shell/Recovery.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QUuid>
#include <exception>

#include "app/Declarations.h"
#include "desktop/kit/FrontWindow.h"
#include "desktop/kit/Text.h"

namespace {

constexpr int PauseMilliseconds = 2000;

QString Folder() {
  QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/recovery";
  QDir().mkpath(folder);
  return folder;
}

QString LockOf(const QString& copy) {
  return copy + ".lock";
}

/// True when the person wants the work back; false when it may go; nothing when undecided.
std::optional<bool> Ask(const QString& projectName, const QDateTime& time) {
  QMessageBox box(QMessageBox::Question, QString::fromLatin1(Declarations::AppTitle),
                  QStringLiteral("Flumewise ended without saving your work on %1.")
                      .arg(projectName.isEmpty() ? QStringLiteral("a project without a name")
                                                 : QStringLiteral("\"%1\"").arg(projectName)),
                  QMessageBox::NoButton, FrontWindow());
  box.setTextFormat(Qt::PlainText);
  box.setWindowModality(Qt::WindowModal);
  box.setInformativeText(
      QStringLiteral("A copy from %1 was kept.").arg(QLocale().toString(time, QLocale::ShortFormat)));
  const QPushButton* const open = box.addButton(QStringLiteral("&Open the copy"), QMessageBox::AcceptRole);
  const QPushButton* const discard =
      box.addButton(QStringLiteral("&Discard it"), QMessageBox::DestructiveRole);
  QPushButton* const later = box.addButton(QStringLiteral("Ask &later"), QMessageBox::RejectRole);
  box.setEscapeButton(later);
  box.exec();
  if (box.clickedButton() == open) return true;
  if (box.clickedButton() == discard) return false;
  return std::nullopt;
}

}  // namespace

Recovery::Recovery(frmMain& main)
    : main_(main),
      folder_(Folder()),
      copy_(folder_ + "/" + QUuid::createUuid().toString(QUuid::WithoutBraces) + ".fwd"),
      lock_(LockOf(copy_)) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
  timer_.start(PauseMilliseconds);
}

Recovery::~Recovery() {
  DropCopy();
}

void Recovery::Look() {
  std::optional<ProjectFile::Project> now = main_.UnsavedProject();
  if (!now) return DropCopy();
  if (seen_ == now && kept_ != now) KeepCopy(*now);
  seen_ = std::move(now);
}

void Recovery::KeepCopy(const ProjectFile::Project& project) {
  if (!lock_.isLocked() && !lock_.tryLock(0)) return;
  try {
    ProjectFile::Write(FromQt(copy_), project);
    kept_ = project;
  } catch (const std::exception&) {
    // A full disk, say: the copy before is still whole, and saving the project itself tells of it.
  }
}

void Recovery::DropCopy() {
  if (!kept_) return;
  QFile::remove(copy_);
  lock_.unlock();
  kept_.reset();
  seen_.reset();
}

void Recovery::OfferLeftCopies() {
  for (const QFileInfo& copy : QDir(folder_).entryInfoList({"*.fwd"}, QDir::Files, QDir::Time)) {
    if (Offer(copy.filePath())) return;
  }
}

bool Recovery::Offer(const QString& path) {
  QLockFile lock(LockOf(path));
  lock.setStaleLockTime(0);  // a lock goes with its program, however long that runs
  if (path == copy_ || !lock.tryLock(0)) return false;
  std::optional<bool> wanted;
  try {
    const ProjectFile::Project project = ProjectFile::Read(FromQt(path));
    wanted = Ask(ToQt(project.ProjName), QFileInfo(path).lastModified());
  } catch (const std::exception&) {
    wanted = false;  // nothing in it that could be opened
  }
  if (!wanted) return false;
  if (*wanted) {
    main_.RecoverProject(FromQt(path));
    KeepCopy(main_.CurrentProject());
  }
  QFile::remove(path);
  return *wanted;
}
