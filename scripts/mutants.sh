#!/usr/bin/env bash
# Twenty plausible faults, put in one at a time: each is written into the
# sources, build/dev is rebuilt, the tests run, and the file is put back. A
# fault that no test notices "survives". docs/testing.md lists the faults and
# the tests that catch them.
#   scripts/mutants.sh            every fault
#   scripts/mutants.sh 3 7        the faults numbered 3 and 7
set -uo pipefail
cd "$(dirname "$0")/.."

# number | file | perl substitution | what the fault is
faults=(
  '1|src/common/Random.cpp|s/float\(1 << 24\)/float((1 << 24) - 1)/|Rnd divides by 2^24-1'
  '2|src/astrology/AstrologyRun.cpp|s/std::int16_t\(CInt\(product\)\)/std::int16_t(std::lround(product))/|Astrology draws round halves away from zero'
  '3|src/runes/modLearnRunesTest.cpp|s/std::size_t\(Draw\(4\)\)/std::size_t(Draw(3))/|Runes keyword test draws Draw(3) of a stone'"'"'s four keywords'
  '4|src/runes/RunesScoring.cpp|s/if \(boxes\(i\).Value\(\) == 1 && boxes\(i\).Caption\(\)/if (boxes(i).Caption()/|Runes scoring ignores the tick'
  '5|src/runes/RunesScoring.cpp|s/"You can select 1 option"/"You must select 1 option"/|Runes: the too-many message says "must"'
  '6|src/goals/GoalFile.cpp|s/std::to_string\(g.intPercent\) \+ "\\r\\n"/std::to_string(g.intPercent) + "\\n"/|Goal files lose their CR'
  '7|src/ui/binding/TextAdapters.cpp|s/prop == Prop::List \W\W prop == Prop::ListIndex/prop == Prop::List/|A drop-down'"'"'s index is not refreshed'
  '8|src/ui/binding/Binder.cpp|s/if \(prop == Prop::Caption\)\n\s*root_->setWindowTitle.*\n//|A window title is not refreshed'
  '9|src/tarot/TarotSettings.cpp|s/save\("Pentacles"/save("Pentacle"/|Tarot saves a misspelt settings key'
  '10|src/tarot/TarotTest.cpp|s/&& attempts < count\)/\&\& attempts < 1)/|Tarot draws may repeat a card'
  '11|src/astrology/AstrologyRun.cpp|s/DrawOver\(int\(U - 1\)\);\n(\s*)while/DrawOver(int(U));\n$1while/|Astrology questions may draw the spare last row'
  '12|src/runes/RunesMemorize.cpp|s/if \(intStoneIndex >= upper\)/if (intStoneIndex > upper)/|Runes walk goes one stone too far'
  '13|src/numerology/frmLearnNumerologyTest.cpp|s/if \(intCurrent <= 9\)/if (intCurrent <= 8)/|Numerology significance test ends after nine'
  '14|src/cards/AccessDialect.cpp|s/if \(SameWord\(word, "group"\) && /if (false \&\& /|The card store leaves Group unquoted'
  '15|src/cards/Recordset.cpp|s/std::clamp\(target, -1L, RecordCount\(\)\)/std::clamp(target, 0L, RecordCount() - 1)/|Move past either end stays on a record'
  '16|src/shell/modHelp.cpp|s/days <= 14\)/days < 14)/|Update reminder comes on day 14'
  '17|src/tarot/TarotReport.cpp|s/perQuestion = lngKeywordsToChoose \+ 1/perQuestion = lngKeywordsToChoose/|Tarot report counts one keyword less a question'
  '18|src/ui/tarot/TarotWindow.cpp|s/Button\("cmdMarkAchived"\)/Button("cmdMarkAchieved")/|Tarot window misnames a button'
  '19|src/common/Control.cpp|s/other->container_ == container_ && other->value_/other->container_ != container_ \&\& other->value_/|Options exclude those of other frames'
  '20|src/tarot/TarotGoals.cpp|s/DaysBetween\(start, end\) <= 0/DaysBetween(start, end) < 0/|A goal may end the day it starts'
)

wanted=" $* "
survivors=0
for fault in "${faults[@]}"; do
  IFS='|' read -r number file substitution what <<<"$fault"
  [ $# -eq 0 ] || [[ "$wanted" == *" $number "* ]] || continue
  backup=$(mktemp)
  cp "$file" "$backup"
  perl -0pi -e "$substitution" "$file"
  if cmp -s "$file" "$backup"; then
    echo "$number: the substitution did not apply to $file" >&2
    exit 2
  fi
  if ! cmake --build build/dev -j2 >/tmp/mutant-build.log 2>&1; then
    result="build fails"
  else
    # "  12 - Suite.Name/(2, false) (Failed)": the names of the failed tests.
    failed=$(ctest --test-dir build/dev -j2 2>&1 | sed -n 's/^\s*[0-9]* - \(.*\) ([^)]*)$/\1/p')
    if [ -z "$failed" ]; then
      result="SURVIVES"
      survivors=$((survivors + 1))
    else
      result="caught by $(echo "$failed" | head -n 3 | paste -sd' ') ($(echo "$failed" | wc -l) tests)"
    fi
  fi
  cat "$backup" >"$file" # a new time stamp: the next build compiles it again
  rm -f "$backup"
  echo "$number. $what: $result"
done
cmake --build build/dev -j2 >/dev/null
echo "$survivors survived"
