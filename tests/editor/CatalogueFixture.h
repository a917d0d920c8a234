// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <stdexcept>
#include <string>

#include "storage/TempFolder.h"

namespace cardwright {

/// Makes an SQLite file by these statements.
inline Text MakeCatalogue(const TempFolder& folder, const std::string& statements) {
  std::filesystem::remove(folder.File("commands.sqlite"));
  sqlite3* file = nullptr;
  sqlite3_open(folder.File("commands.sqlite").c_str(), &file);
  const int result = sqlite3_exec(file, statements.c_str(), nullptr, nullptr, nullptr);
  sqlite3_close(file);
  if (result != SQLITE_OK) throw std::runtime_error("the catalogue's statements failed");
  return folder.Name("commands.sqlite");
}

/// Two commands, two requests, one hidden.
inline std::string SomeCommands() {
  return "CREATE TABLE Funzioni (NomeORV TEXT, Descrizione TEXT, Request INTEGER, Categoria TEXT, Ordine "
         "INTEGER, Nascosto INTEGER);"
         "INSERT INTO Funzioni VALUES"
         "('THEME_SELECT |theme| id', 'Selects a feature', 0, 'Themes', 1, 0),"
         "('THEME_NUMBER |theme|', NULL, 1, 'Themes', 2, 0),"
         "('APPLICATION_REDRAW', '?', 0, 'Application', 1, 0),"
         "('IT''S |x|', 'quoted', 1, NULL, 1, 0),"
         "('SECRET', 'hidden', 0, 'Application', 2, 1);";
}

}  // namespace cardwright
