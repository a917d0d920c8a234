// SPDX-License-Identifier: MIT
#include "cardwright/automation/Locale.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>

namespace cardwright {

namespace {

using Order = Locale::DateOrder;
using Months = std::array<std::u16string_view, 12>;
using Days = std::array<std::u16string_view, 7>;

/// What all countries with one language have in common.
struct Language {
  Months months, shortMonths;
  Days weekdays, shortWeekdays;
  Months monthsInDates{};  // where a day changes the form of its month
};

constexpr Language kEnglish{
    {u"January", u"February", u"March", u"April", u"May", u"June", u"July", u"August", u"September",
     u"October", u"November", u"December"},
    {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun", u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"},
    {u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"},
    {u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"}};

constexpr Language kItalian{
    {u"gennaio", u"febbraio", u"marzo", u"aprile", u"maggio", u"giugno", u"luglio", u"agosto", u"settembre",
     u"ottobre", u"novembre", u"dicembre"},
    {u"gen", u"feb", u"mar", u"apr", u"mag", u"giu", u"lug", u"ago", u"set", u"ott", u"nov", u"dic"},
    {u"domenica", u"lunedì", u"martedì", u"mercoledì", u"giovedì", u"venerdì", u"sabato"},
    {u"dom", u"lun", u"mar", u"mer", u"gio", u"ven", u"sab"}};

constexpr Language kGerman{
    {u"Januar", u"Februar", u"März", u"April", u"Mai", u"Juni", u"Juli", u"August", u"September", u"Oktober",
     u"November", u"Dezember"},
    {u"Jan", u"Feb", u"Mrz", u"Apr", u"Mai", u"Jun", u"Jul", u"Aug", u"Sep", u"Okt", u"Nov", u"Dez"},
    {u"Sonntag", u"Montag", u"Dienstag", u"Mittwoch", u"Donnerstag", u"Freitag", u"Samstag"},
    {u"So", u"Mo", u"Di", u"Mi", u"Do", u"Fr", u"Sa"}};

constexpr Language kFrench{{u"janvier", u"février", u"mars", u"avril", u"mai", u"juin", u"juillet", u"août",
                            u"septembre", u"octobre", u"novembre", u"décembre"},
                           {u"janv.", u"févr.", u"mars", u"avr.", u"mai", u"juin", u"juil.", u"août",
                            u"sept.", u"oct.", u"nov.", u"déc."},
                           {u"dimanche", u"lundi", u"mardi", u"mercredi", u"jeudi", u"vendredi", u"samedi"},
                           {u"dim.", u"lun.", u"mar.", u"mer.", u"jeu.", u"ven.", u"sam."}};

constexpr Language kSpanish{
    {u"enero", u"febrero", u"marzo", u"abril", u"mayo", u"junio", u"julio", u"agosto", u"septiembre",
     u"octubre", u"noviembre", u"diciembre"},
    {u"ene", u"feb", u"mar", u"abr", u"may", u"jun", u"jul", u"ago", u"sep", u"oct", u"nov", u"dic"},
    {u"domingo", u"lunes", u"martes", u"miércoles", u"jueves", u"viernes", u"sábado"},
    {u"dom", u"lun", u"mar", u"mié", u"jue", u"vie", u"sáb"}};

constexpr Language kPortuguese{
    {u"janeiro", u"fevereiro", u"março", u"abril", u"maio", u"junho", u"julho", u"agosto", u"setembro",
     u"outubro", u"novembro", u"dezembro"},
    {u"jan", u"fev", u"mar", u"abr", u"mai", u"jun", u"jul", u"ago", u"set", u"out", u"nov", u"dez"},
    {u"domingo", u"segunda-feira", u"terça-feira", u"quarta-feira", u"quinta-feira", u"sexta-feira",
     u"sábado"},
    {u"dom", u"seg", u"ter", u"qua", u"qui", u"sex", u"sáb"}};

constexpr Language kDutch{
    {u"januari", u"februari", u"maart", u"april", u"mei", u"juni", u"juli", u"augustus", u"september",
     u"oktober", u"november", u"december"},
    {u"jan", u"feb", u"mrt", u"apr", u"mei", u"jun", u"jul", u"aug", u"sep", u"okt", u"nov", u"dec"},
    {u"zondag", u"maandag", u"dinsdag", u"woensdag", u"donderdag", u"vrijdag", u"zaterdag"},
    {u"zo", u"ma", u"di", u"wo", u"do", u"vr", u"za"}};

constexpr Language kSwedish{
    {u"januari", u"februari", u"mars", u"april", u"maj", u"juni", u"juli", u"augusti", u"september",
     u"oktober", u"november", u"december"},
    {u"jan", u"feb", u"mar", u"apr", u"maj", u"jun", u"jul", u"aug", u"sep", u"okt", u"nov", u"dec"},
    {u"söndag", u"måndag", u"tisdag", u"onsdag", u"torsdag", u"fredag", u"lördag"},
    {u"sön", u"mån", u"tis", u"ons", u"tor", u"fre", u"lör"}};

constexpr Language kPolish{
    {u"styczeń", u"luty", u"marzec", u"kwiecień", u"maj", u"czerwiec", u"lipiec", u"sierpień", u"wrzesień",
     u"październik", u"listopad", u"grudzień"},
    {u"sty", u"lut", u"mar", u"kwi", u"maj", u"cze", u"lip", u"sie", u"wrz", u"paź", u"lis", u"gru"},
    {u"niedziela", u"poniedziałek", u"wtorek", u"środa", u"czwartek", u"piątek", u"sobota"},
    {u"niedz.", u"pon.", u"wt.", u"śr.", u"czw.", u"pt.", u"sob."},
    {u"stycznia", u"lutego", u"marca", u"kwietnia", u"maja", u"czerwca", u"lipca", u"sierpnia", u"września",
     u"października", u"listopada", u"grudnia"}};

constexpr Language kDanish{
    {u"januar", u"februar", u"marts", u"april", u"maj", u"juni", u"juli", u"august", u"september", u"oktober",
     u"november", u"december"},
    {u"jan", u"feb", u"mar", u"apr", u"maj", u"jun", u"jul", u"aug", u"sep", u"okt", u"nov", u"dec"},
    {u"søndag", u"mandag", u"tirsdag", u"onsdag", u"torsdag", u"fredag", u"lørdag"},
    {u"sø", u"ma", u"ti", u"on", u"to", u"fr", u"lø"}};

constexpr Language kFinnish{
    {u"tammikuu", u"helmikuu", u"maaliskuu", u"huhtikuu", u"toukokuu", u"kesäkuu", u"heinäkuu", u"elokuu",
     u"syyskuu", u"lokakuu", u"marraskuu", u"joulukuu"},
    {u"tammi", u"helmi", u"maalis", u"huhti", u"touko", u"kesä", u"heinä", u"elo", u"syys", u"loka",
     u"marras", u"joulu"},
    {u"sunnuntai", u"maanantai", u"tiistai", u"keskiviikko", u"torstai", u"perjantai", u"lauantai"},
    {u"su", u"ma", u"ti", u"ke", u"to", u"pe", u"la"},
    {u"tammikuuta", u"helmikuuta", u"maaliskuuta", u"huhtikuuta", u"toukokuuta", u"kesäkuuta", u"heinäkuuta",
     u"elokuuta", u"syyskuuta", u"lokakuuta", u"marraskuuta", u"joulukuuta"}};

constexpr Language kNorwegian{
    {u"januar", u"februar", u"mars", u"april", u"mai", u"juni", u"juli", u"august", u"september", u"oktober",
     u"november", u"desember"},
    {u"jan", u"feb", u"mar", u"apr", u"mai", u"jun", u"jul", u"aug", u"sep", u"okt", u"nov", u"des"},
    {u"søndag", u"mandag", u"tirsdag", u"onsdag", u"torsdag", u"fredag", u"lørdag"},
    {u"sø", u"ma", u"ti", u"on", u"to", u"fr", u"lø"}};

struct Numbers {
  char16_t decimal, group;
};
constexpr Numbers kPoint{u'.', u','}, kComma{u',', u'.'}, kCommaAndBlank{u',', u'\u00A0'},
    kSwiss{u'.', u'\''};

struct DayStyle {
  Order order;
  char16_t separator;
  bool twoDigits;
};
constexpr DayStyle kSlashes{Order::DayMonthYear, u'/', true}, kPoints{Order::DayMonthYear, u'.', true},
    kDashes{Order::DayMonthYear, u'-', true}, kIso{Order::YearMonthDay, u'-', true};

struct Money {
  std::u16string_view symbol, form, negativeForm;
};
constexpr Money InFront(std::u16string_view symbol) { return {symbol, u"$n", u"-$n"}; }
constexpr Money InFrontWithBlank(std::u16string_view symbol) { return {symbol, u"$ n", u"-$ n"}; }
constexpr Money Behind(std::u16string_view symbol) { return {symbol, u"n $", u"-n $"}; }

struct Weeks {
  int firstDay;
  bool fourDaysInFirst;
};
constexpr Weeks kFromSunday{0, false}, kFromMonday{1, true};

constexpr Locale Make(std::u16string_view name, int lcid, const Language& language, Numbers numbers,
                      DayStyle days, std::u16string_view longDate, Money money, Weeks weeks = kFromMonday) {
  return {.name = name,
          .lcid = lcid,
          .decimal = numbers.decimal,
          .group = numbers.group,
          .dateOrder = days.order,
          .dateSeparator = days.separator,
          .twoDigitDayMonth = days.twoDigits,
          .clock24 = days.order != Order::MonthDayYear,
          .am = u"AM",
          .pm = u"PM",
          .currency = money.symbol,
          .currencyForm = money.form,
          .negativeCurrencyForm = money.negativeForm,
          .longDate = longDate,
          .firstWeekday = weeks.firstDay,
          .fourDaysInFirstWeek = weeks.fourDaysInFirst,
          .months = language.months,
          .shortMonths = language.shortMonths,
          .monthsInDates = language.monthsInDates,
          .weekdays = language.weekdays,
          .shortWeekdays = language.shortWeekdays};
}

// A bare language name means the first country of the language.
constexpr Locale kLocales[] = {
    Make(u"en-us", 1033, kEnglish, kPoint, {Order::MonthDayYear, u'/', false}, u"dddd, MMMM d, yyyy",
         {u"$", u"$n", u"($n)"}, kFromSunday),
    Make(u"en-gb", 2057, kEnglish, kPoint, kSlashes, u"dd MMMM yyyy", InFront(u"£")),
    Make(u"it-it", 1040, kItalian, kComma, kSlashes, u"dddd d MMMM yyyy", Behind(u"€")),
    Make(u"de-de", 1031, kGerman, kComma, kPoints, u"dddd, d. MMMM yyyy", Behind(u"€")),
    Make(u"de-ch", 2055, kGerman, kSwiss, kPoints, u"dddd, d. MMMM yyyy", {u"CHF", u"$ n", u"$-n"}),
    Make(u"fr-fr", 1036, kFrench, kCommaAndBlank, kSlashes, u"dddd d MMMM yyyy", Behind(u"€")),
    Make(u"es-es", 3082, kSpanish, kComma, kSlashes, u"dddd, d 'de' MMMM 'de' yyyy", Behind(u"€")),
    Make(u"pt-br", 1046, kPortuguese, kComma, kSlashes, u"dddd, d 'de' MMMM 'de' yyyy",
         InFrontWithBlank(u"R$"), kFromSunday),
    Make(u"pt-pt", 2070, kPortuguese, kCommaAndBlank, kSlashes, u"dddd, d 'de' MMMM 'de' yyyy", Behind(u"€")),
    Make(u"nl-nl", 1043, kDutch, kComma, {Order::DayMonthYear, u'-', false}, u"dddd d MMMM yyyy",
         {u"€", u"$ n", u"$ -n"}),
    Make(u"sv-se", 1053, kSwedish, kCommaAndBlank, kIso, u"'den' d MMMM yyyy", Behind(u"kr")),
    Make(u"pl-pl", 1045, kPolish, kCommaAndBlank, kPoints, u"dddd, d MMMM yyyy", Behind(u"zł")),
    Make(u"da-dk", 1030, kDanish, kComma, kDashes, u"d. MMMM yyyy", Behind(u"kr.")),
    Make(u"fi-fi", 1035, kFinnish, kCommaAndBlank, {Order::DayMonthYear, u'.', false}, u"d. MMMM yyyy",
         Behind(u"€")),
    Make(u"nb-no", 1044, kNorwegian, kCommaAndBlank, kPoints, u"dddd d. MMMM yyyy", InFrontWithBlank(u"kr")),
};

thread_local const Locale* t_Current = nullptr;

// "it_IT.UTF-8@euro" as "it-it".
std::u16string Normalized(std::u16string_view name) {
  name = Trim(name);
  std::u16string result(name.substr(0, name.find_first_of(u".@")));
  for (char16_t& c : result) c = c == u'_' ? u'-' : ToLower(c);
  if (result == u"c" || result == u"posix") return u"en-us";
  if (result == u"no" || result.starts_with(u"no-")) return u"nb-no";
  return result;
}

const Locale* FindNormalized(std::u16string_view name) noexcept {
  const auto found = std::ranges::find(kLocales, name, &Locale::name);
  return found == std::end(kLocales) ? nullptr : found;
}

const Locale& FromEnvironment() noexcept {
  for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    const char* name = std::getenv(variable);
    if (!name || !*name) continue;
    const Locale* locale = Locale::Find(Text::FromUtf8(name));
    return locale ? *locale : kLocales[0];
  }
  return kLocales[0];
}

}  // namespace

const Locale* Locale::Find(std::u16string_view name) noexcept {
  const std::u16string wanted = Normalized(name);
  if (const Locale* exact = FindNormalized(wanted)) return exact;
  const std::u16string language = wanted.substr(0, wanted.find(u'-')) + u"-";
  const auto found =
      std::ranges::find_if(kLocales, [&](auto& locale) { return locale.name.starts_with(language); });
  return found == std::end(kLocales) ? nullptr : found;
}

const Locale* Locale::Find(int number) noexcept {
  const auto found = std::ranges::find(kLocales, number, &Locale::lcid);
  return found == std::end(kLocales) ? nullptr : found;
}

const Locale& Locale::OfProcess() noexcept {
  static const Locale& locale = FromEnvironment();
  return locale;
}

const Locale& Locale::Current() noexcept { return t_Current ? *t_Current : OfProcess(); }

void Locale::SetCurrent(const Locale& locale) noexcept { t_Current = &locale; }

}  // namespace cardwright
