// See Recovery.h.
#include "desktop/shell/Recovery.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <exception>

#include "app/Declarations.h"
#include "desktop/kit/FrontWindow.h"
#include "desktop/kit/Text.h"
#include "files/PathText.h"
#include "files/WholeFile.h"

namespace {

/// True to open the copy, false to discard it; nothing when undecided.
std::optional<bool> Ask(const QString& projectName, const QDateTime& time) {
  QMessageBox box(QMessageBox::Question, QString::fromLatin1(Declarations::AppTitle),
                  QStringLiteral("Flumewise ended without saving your work on %1.")
                      .arg(projectName.isEmpty() ? QStringLiteral("a project without a name")
                                                 : QStringLiteral("\"%1\"").arg(projectName)),
                  QMessageBox::NoButton, FrontWindow());
  SetUpBox(box);
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

/// Sets aside a copy that cannot be opened.
void SetAside(KeptCopy& copy, const std::exception& failure) {
  std::filesystem::path now = copy.Path();
  try {
    now = copy.SetAside();
  } catch (const std::exception&) {
    // It stays where it is and is reported again at the next start.
  }
  QMessageBox box(
      QMessageBox::Warning, QString::fromLatin1(Declarations::AppTitle),
      QStringLiteral("A recovery copy cannot be opened: %1.").arg(ToQt(WholeFile::ReasonOf(failure))),
      QMessageBox::Ok, FrontWindow());
  SetUpBox(box);
  const QString origin =
      copy.Origin().empty() ? QString() : QStringLiteral(" It belongs to %1.").arg(ToQt(copy.Origin()));
  box.setInformativeText(QStringLiteral("It was kept as %1.").arg(ToQt(TextOf(now))) + origin);
  box.exec();
}

}  // namespace

Recovery::Recovery(frmMain& main, int milliseconds) : main_(main) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
  timer_.start(milliseconds);
}

Recovery::~Recovery() {
  Drop();
}

void Recovery::Look() {
  std::optional<ProjectFile::Project> work = main_.UnsavedProject();
  if (!work) return Drop();
  if (kept_ != work || !copy_->Exists()) Keep(std::move(*work));
}

void Recovery::Leave() {
  Look();
  timer_.stop();
  copy_.reset();
}

void Recovery::Keep(ProjectFile::Project work) {
  const std::string origin = main_.FileOfWork();
  const std::string bytes = ProjectFile::Format(work);
  try {
    if (copy_ && copy_->Exists() && copy_->Origin() == origin) {
      copy_->Write(bytes);
    } else {
      KeptCopy fresh(origin, bytes);
      Drop();
      copy_.emplace(std::move(fresh));
    }
    kept_ = std::move(work);
  } catch (const std::exception&) {
    // A full disk, say: the copy before is still whole, and the next look tries again.
  }
}

void Recovery::Drop() {
  if (copy_) copy_->Remove();
  copy_.reset();
  kept_.reset();
}

void Recovery::OfferLeftCopies() {
  for (const std::filesystem::path& path : KeptCopy::All()) {
    if (Offer(path)) return;
  }
}

bool Recovery::Offer(const std::filesystem::path& path) {
  std::optional<KeptCopy> left = KeptCopy::TakeOver(path);
  if (!left) return false;
  ProjectFile::Project project;
  try {
    project = ProjectFile::Read(TextOf(path));
  } catch (const std::exception& failure) {
    SetAside(*left, failure);
    return false;
  }
  const std::optional<bool> wanted =
      Ask(ToQt(project.ProjName.empty() ? TextOf(PathOf(left->Origin()).filename()) : project.ProjName),
          QFileInfo(ToQt(TextOf(path))).lastModified());
  if (wanted == false) left->Remove();
  if (wanted != true) return false;
  Drop();
  main_.RecoverProject(project, left->Origin());
  copy_.emplace(std::move(*left));  // the work's copy from now on, so that there is one at every moment
  kept_ = std::move(project);
  return true;
}
