// JSON as text: reading it with clear failures.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace orm {

// Reads a whole text. What is no JSON, a name that stands twice in an object, and objects deeper
// than any of ours are a RuntimeFailure with its line or its name.
nlohmann::ordered_json LeggiJson(std::string_view testo);

// "Al posto di un numero c'è "dodici"."
std::string AlPostoDi(const std::string& atteso, const nlohmann::ordered_json& trovato);

}  // namespace orm
