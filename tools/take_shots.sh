#!/usr/bin/env bash
# Screenshots of the windows in English and German: take_shots.sh BUILD_FOLDER TARGET_FOLDER
set -euo pipefail
build=$(realpath "$1")
shots=$(realpath "$2")

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

states='set Temp1 32
set relF1 40
set Temp2 16
set relF2 90
set LuftM1 1000
set LuftM2 500
return Temp1
return LuftM1
return LuftM2'

shoot() { # NAME LANGUAGE SIZE SETTINGS; the acts come from standard input
    local data=$work/data script=$work/script.txt
    rm -rf "$data"
    cp -r "$build/share/zandrell" "$data"
    sed -i "s/\"ENG\"/\"$2\"/" "$data/kparam.dat"
    printf '%s\n' "$4" | tr ' ' '\n' >"$data/qv_par.dat"
    { cat; printf 'shot %s/%s-%s-%s.png\n' "$shots" "$1" "$2" "$3"; } >"$script"
    timeout 60 xvfb-run -a -s "-screen 0 3840x2400x24" \
        "$build/bin/zandrell" --data "$data" --size "$3" --script "$script"
    printf '%s/%s-%s-%s.png\n' "$shots" "$1" "$2" "$3"
}

mollier="1.013 -20 40 0 40 0 0 1"
carrier="1.013 -20 40 0 40 0 1 1"
dark_mollier="1.013 -20 40 0 40 0 0 0"
dark_carrier="1.013 -20 40 0 40 0 1 0"

for language in ENG DEU; do
    shoot read-out $language 1280x800 "$mollier" <<<'pointer move 500 200'
    for tool in ZAButt BearButt MischButt Kuehl_start Humid_D_Start; do
        shoot "panel-$tool" $language 1280x800 "$mollier" <<<"$states
click $tool"
    done
    shoot panel-Heiz_start $language 1280x800 "$mollier" <<<"$states
set Temp2 38
click Heiz_start"
    shoot panel-Humid_W_Start $language 1280x800 "$mollier" <<<"$states
set Temp2 24
click Humid_W_Start"
    for season in summer winter-steam winter-water; do
        shoot "plant-$season" $language 1280x800 "$mollier" <"examples/plant-$season.txt"
    done
    shoot options $language 1280x800 "$mollier" <<<'click optButt'
done
for size in 1280x800 1920x1080 3840x2160; do
    shoot carrier ENG $size "$carrier" <examples/plant-summer.txt
    shoot dark-mollier ENG $size "$dark_mollier" <examples/plant-summer.txt
    shoot dark-carrier ENG $size "$dark_carrier" <examples/plant-winter-water.txt
done
for size in 1920x1080 3840x2160; do
    shoot mollier ENG $size "$mollier" <examples/plant-summer.txt
done
