// A printer that says how far it is, and can be stopped.
#pragma once

#include <QPrinter>
#include <QProgressDialog>
#include <QWidget>
#include <cstddef>
#include <memory>

namespace lb77 {

// Sheets take milliseconds each, to draw for a look as well as for paper.
class Velprinter final : public QPrinter {
 public:
  Velprinter() : QPrinter(HighResolution) {}

  // So many sheets are going to be drawn. Of more than a few it tells over `ouder` (may be null) which
  // one it is at, until Klaar.
  void Begin(QWidget* ouder, std::size_t vellen);
  void Klaar() { teller_.reset(); }
  // The user wanted no more of them: the last newPage was False.
  [[nodiscard]] bool Gestopt() const { return gestopt_; }

  bool newPage() override;

 private:
  std::unique_ptr<QProgressDialog> teller_;
  int vel_ = 1;
  bool gestopt_ = false;
};

}  // namespace lb77
