#include "interchange/json_text.h"

#include <algorithm>
#include <set>
#include <vector>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kPiuProfondo = 16;

[[noreturn]] void RespingiTesto(std::string_view testo, std::size_t fine,
                                const std::string& motivo) {
  const std::string_view prima = testo.substr(0, std::min(fine, testo.size()));
  const auto colonna = Characters(prima.substr(prima.rfind('\n') + 1));
  throw RuntimeFailure(motivo + ", al carattere " + NumberText(static_cast<double>(colonna)) +
                       " della riga.")
      .AtLine(1 + static_cast<int>(std::ranges::count(prima, '\n')));
}

// Keeps the names of the objects that are open.
class NomiDiversi {
 public:
  bool operator()(int livello, Json::parse_event_t evento, const Json& valore) {
    if (livello > kPiuProfondo)
      throw RuntimeFailure("Gli oggetti sono annidati più di quanto è previsto.");
    const auto quale = static_cast<std::size_t>(livello);
    if (evento == Json::parse_event_t::object_start) {
      nomi_.resize(quale + 1);
      nomi_.emplace_back();
    }
    if (evento == Json::parse_event_t::key &&
        !nomi_[quale].insert(valore.get<std::string>()).second)
      throw RuntimeFailure("Questo nome sta due volte nello stesso oggetto.")
          .AtField(valore.get<std::string>());
    return true;
  }

 private:
  std::vector<std::set<std::string>> nomi_;
};

}  // namespace

Json LeggiJson(std::string_view testo) {
  try {
    return Json::parse(testo, NomiDiversi());
  } catch (const Json::parse_error& errore) {
    const bool codifica = std::string_view(errore.what()).find("UTF-8") != std::string_view::npos;
    const char* motivo = codifica                     ? "Il testo non è in codifica UTF-8"
                         : errore.byte > testo.size() ? "Il testo JSON finisce a metà"
                                                      : "Il testo non è JSON";
    RespingiTesto(testo, errore.byte, motivo);
  } catch (const Json::out_of_range&) {
    throw RuntimeFailure("Il testo JSON contiene un numero fuori da ogni limite.");
  }
}

std::string AlPostoDi(const std::string& atteso, const Json& trovato) {
  std::string testo = trovato.is_string() ? trovato.get<std::string>() : trovato.dump();
  if (Characters(testo) > 40) testo = Left(testo, 40) + "…";
  return "Al posto " + atteso + " c'è \"" + testo + "\".";
}

}  // namespace orm
