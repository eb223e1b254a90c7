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

constexpr std::size_t kPiuProfondo = 16;
constexpr std::size_t kPiuNomi = 200;  // each is looked for among all those before it

[[noreturn]] void RespingiTesto(std::string_view testo, std::size_t fine,
                                const std::string& motivo) {
  const std::string_view prima = testo.substr(0, std::min(fine, testo.size()));
  const auto colonna = Characters(prima.substr(prima.rfind('\n') + 1));
  throw RuntimeFailure(motivo + ", al carattere " + NumberText(static_cast<double>(colonna)) +
                       " della riga.")
      .AtLine(1 + static_cast<int>(std::ranges::count(prima, '\n')));
}

// Goes through a text before anything is built of it: a reader that builds and asks at each step
// looks through the whole list at the end of each of its objects.
class FormaDelTesto : public nlohmann::json_sax<Json> {
 public:
  explicit FormaDelTesto(std::string_view testo) : testo_(testo) {}

  bool null() override { return true; }
  bool boolean(bool) override { return true; }
  bool number_integer(number_integer_t) override { return true; }
  bool number_unsigned(number_unsigned_t) override { return true; }
  bool number_float(number_float_t, const string_t&) override { return true; }
  bool string(string_t&) override { return true; }
  bool binary(binary_t&) override { return true; }
  bool start_object(std::size_t) override { return Apri(); }
  bool end_object() override { return Chiudi(); }
  bool start_array(std::size_t) override { return Apri(); }
  bool end_array() override { return Chiudi(); }
  // Of text that is none, and of a number beyond every limit.
  bool parse_error(std::size_t fine, const std::string&,
                   const nlohmann::detail::exception& errore) override {
    if (dynamic_cast<const Json::parse_error*>(&errore) == nullptr)
      throw RuntimeFailure("Il testo JSON contiene un numero fuori da ogni limite.");
    const bool codifica = std::string_view(errore.what()).find("UTF-8") != std::string_view::npos;
    RespingiTesto(testo_, fine,
                  codifica               ? "Il testo non è in codifica UTF-8"
                  : fine > testo_.size() ? "Il testo JSON finisce a metà"
                                         : "Il testo non è JSON");
  }

  bool key(string_t& nome) override {
    auto& nomi = nomi_.back();
    if (!nomi.insert(nome).second)
      throw RuntimeFailure("Questo nome sta due volte nello stesso oggetto.").AtField(nome);
    if (nomi.size() > kPiuNomi)
      throw RuntimeFailure("Un oggetto ha più campi di quanti sono previsti.").AtField(nome);
    return true;
  }

 private:
  bool Apri() {
    if (nomi_.size() > kPiuProfondo)
      throw RuntimeFailure("Gli oggetti sono annidati più di quanto è previsto.");
    nomi_.emplace_back();
    return true;
  }
  bool Chiudi() {
    nomi_.pop_back();
    return true;
  }

  std::string_view testo_;
  std::vector<std::set<std::string>> nomi_;  // of what is open
};

}  // namespace

Json LeggiJson(std::string_view testo) {
  FormaDelTesto forma(testo);
  Json::sax_parse(testo, &forma);
  return Json::parse(testo);
}

std::string AlPostoDi(const std::string& atteso, const Json& trovato) {
  std::string testo = trovato.is_string() ? trovato.get<std::string>() : trovato.dump();
  if (Characters(testo) > 40) testo = Left(testo, 40) + "…";
  return "Al posto " + atteso + " c'è \"" + testo + "\".";
}

}  // namespace orm
