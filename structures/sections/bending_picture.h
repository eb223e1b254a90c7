// The drawing of a verified section: what the T and the circular shapes have in common. Depths and
// widths come in cm, the panel counts in its own units: the section stands on the left with its
// lower left corner at (1, 1), the diagram of stresses on the right of it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "dialogs/lavagna.h"
#include "structures/dimension_lines.h"
#include "structures/label_places.h"
#include "structures/section_statement.h"

namespace orm {

// A part of a horizontal line, from the left edge of the section's box, cm.
struct Tratto {
  double da = 0, a = 0;
};

// A stress to show: of concrete at an edge or of steel.
struct TensioneDisegnata {
  double profondita = 0;  // cm
  double valore = 0;      // kg/cmq, tension positive
  bool cls = false;
};

// A measure of the section and its name: depths, or distances from the left edge of its box, cm.
struct QuotaSezione {
  double da = 0, a = 0;
  std::string nome;
};

inline constexpr const char *kVerificata = "SEZIONE VERIFICATA",
                            *kNonVerificata = "SEZIONE NON VERIFICATA";

class DisegnoFlessione {
 public:
  using Tratti = std::function<std::vector<Tratto>(double)>;  // of the outline at a depth

  // Empties the panel and takes the scale that suits a section of that height and width. The
  // background is white for a section that holds and yellow for one that does not; a line of text
  // says the same. A section with flanges or a hole has a chain of thicknesses (`spessori`).
  DisegnoFlessione(Lavagna& lavagna, double H, double W, bool spessori, bool verificata,
                   Tratti tratti);

  double X(double cm) const { return 1 + cm / Sc_; }
  double Y(double profondita) const { return 1 + (H_ - profondita) / Sc_; }
  double Scala() const { return Sc_; }  // cm a unit

  // The steps of the drawing, in this order; the outline comes after the hatching.
  void Tratteggia(double bordo, double asse);
  void AsseNeutro(double profondita);  // the line; its name comes with the labels that give way
  // A horizontal edge of the outline, which labels do not stand on.
  void Spigolo(double da, double a, double profondita) { posti_.Riga(X(da), X(a), Y(profondita)); }
  // The height, covers and thicknesses left of the section; a width below or above it.
  void QuoteVerticali(const QuotaSezione& altezza, const std::vector<QuotaSezione>& copriferri,
                      const std::vector<QuotaSezione>& spessori);
  void QuotaLarghezza(const QuotaSezione& larghezza, double profondita);
  // A thickness told within the section.
  void QuotaAnima(const QuotaSezione& larghezza, double profondita);
  void Momento(double kgxcm);
  // Compression left of the base line, tension right of it; the value stands on the free side.
  void DiagrammaTensioni(std::vector<TensioneDisegnata> tensioni, double asse,
                         const TensioniAmmissibili& ammesse);
  // Last, as these labels give way to all others.
  // Bars on the axis of symmetry: a mark at each depth (not wider than `larghezza` there) and the
  // area beside it. An area of 0 is no layer.
  void Armature(std::vector<double> profondita, std::vector<double> aree,
                const std::function<double(double)>& larghezza);

 private:
  void Legenda(bool verificata);
  void ScriviCls(const TensioneDisegnata& cls, const std::vector<TensioneDisegnata>& tensioni,
                 const TensioniAmmissibili& ammesse, double y);
  double QuotaNome(const QuotaSezione& quota) const;
  PostiEtichette::Richiesta NomeAsse() const;
  void Richiamo(double profondita, double x);
  void Catena(double x, const std::vector<QuotaSezione>& quote);
  void ScriviTensioni(const std::vector<TensioneDisegnata>& tensioni,
                      const TensioniAmmissibili& ammesse, bool compresse, bool versoAlto);

  Lavagna& lavagna_;
  double H_, W_, Sc_, sinistra_;
  double asse_ = 0;  // depth of the neutral axis
  Tratti tratti_;
  PostiEtichette posti_;
  Quote quote_;
};

// Scale of a section, cm a unit: six units high, unless it would then be 15 units wide or more.
double ScalaDisegno(double H, double W);

// Heights of labels that keep `passo` between neighbours: `quote` go down, and a label that would
// be too near to the one before gives way, downward or upward, as long as it stays within limits.
std::vector<double> QuoteEtichette(std::vector<double> quote, double passo, bool versoAlto,
                                   double minimo, double massimo);

}  // namespace orm
