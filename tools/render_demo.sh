#!/usr/bin/env bash
# Renders the charts and the sample plant without a display: render_demo.sh BUILD_FOLDER TARGET_FOLDER
set -euo pipefail
build=$1
demo=$2
data=$demo/data
calc=$build/bin/zandrell-calc

rm -rf "$demo"
mkdir -p "$demo"
cp -r "$build/share/zandrell" "$data"

render() { # NAME, then options of the chart verb
    local name=$1 kind format
    for kind in mollier carrier; do
        for format in png svg pdf; do
            "$calc" --data "$data" chart --kind "$kind" -o "$demo/$name-$kind.$format" "${@:2}"
        done
    done
    printf 'Rendered %s/%s-{mollier,carrier}.{png,svg,pdf}\n' "$demo" "$name"
}

render chart
printf '\n'
for state in "20 50" "32 40" "-10 90"; do
    read -r t rh <<<"$state"
    "$calc" --data "$data" state --t "$t" --rh "$rh" --p 1.013
    printf '\n'
done

plant() { # NAME TITLE
    render "$1" --form "examples/$1.txt"
    "$build/bin/print_figures" "$data" "examples/$1.txt" "$2" | tee "$demo/$1.txt"
    printf '\n'
}
"$calc" --data "$data" print -o "$demo/plant-sheet.pdf" --form examples/plant-summer.txt
printf 'Printed %s/plant-sheet.pdf\n\n' "$demo"
sed "s|selection-sheet.pdf|$demo/selection-sheet.pdf|" examples/selection-cooler.txt |
    "$calc" --data "$data" selection - | tools/selection_figures.py | tee "$demo/selection.txt"
"$calc" --data "$data" capacity 600 LeistFaktor=1 > "$demo/selection.csv"
printf '\n  Data sheet: %s/selection-sheet.pdf, all coolers: %s/selection.csv\n\n' "$demo" "$demo"
plant plant-summer "Sample plant in summer"
plant plant-winter-steam "Sample plant in winter, steam humidifier"
plant plant-winter-water "Sample plant in winter, water humidifier"
