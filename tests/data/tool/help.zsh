#compdef fluidbench-io
# Completes command lines of fluidbench-io in zsh. Made from the program's own tables.
local -a found
if (( CURRENT > 2 )) && [[ $words[2] == help ]]; then
    shift words
    (( CURRENT-- ))
fi
if (( CURRENT == 2 )); then
    found=('deck:keyword decks of compositional fluids' 'blackoil:black-oil tables' 'compositions:compositions against pressure' 'kvalues:K-value tables' 'thermal:thermal data' 'depth:fluids by depth' 'envelope:phase envelopes' 'dfa:downhole fluid analyses' 'mfl:MFL fluid files' 'check:Read files of any format and tell what is wrong with them, line by line. The exit status is 1 where one has errors' 'help:more on a format or command' '--version:the program'\''s version')
    _describe 'format or command' found
    return
fi
if (( CURRENT == 3 )) && [[ $words[2] == deck ]]; then
    found=('show:Show the fluid of a deck: its models, components and interaction coefficients' 'convert:Write the fluid of a deck or an MFL file as a deck' 'diff:Tell what differs between the fluids of two decks')
    _describe verb found
    return
fi
if (( CURRENT == 3 )) && [[ $words[2] == blackoil ]]; then
    found=('show:Show the densities and tables of a file' 'convert:Write the tables as keywords for a simulator, or with commas' 'diff:Tell what differs between two files' 'plot:Draw solution ratio, volume factor and viscosity of oil and gas against pressure as SVG, those of several files together, and print the picture'\''s name')
    _describe verb found
    return
fi
if (( CURRENT == 3 )) && [[ $words[2] == compositions ]]; then
    found=('show:Show the compositions of vapour and liquid against pressure')
    _describe verb found
    return
fi
if (( CURRENT == 3 )) && [[ $words[2] == kvalues ]]; then
    found=('show:Show the K-values of a file against pressure' 'convert:Write the K-values as keywords for a simulator, or with commas' 'diff:Tell what differs between two files' 'plot:Draw K-values against pressure on logarithmic axes as SVG, those of several files together, and print the picture'\''s name')
    _describe verb found
    return
fi
if (( CURRENT == 3 )) && [[ $words[2] == thermal ]]; then
    found=('show:Show the thermal data of a file'\''s components, in model units' 'convert:Write the thermal data as keywords for a simulator, or with commas')
    _describe verb found
    return
fi
if (( CURRENT == 3 )) && [[ $words[2] == depth ]]; then
    found=('show:Show the fluids of a depth run, or tables against depth' 'convert:Write depth variation tables as keywords for a simulator, or with commas' 'plot:Draw saturation pressure, gas-oil ratio and composition by depth as SVG, with the contact, those of several files together, and print the picture'\''s name')
    _describe verb found
    return
fi
if (( CURRENT == 3 )) && [[ $words[2] == envelope ]]; then
    found=('show:Show the plots of a file, their lines, and what each line ranges over' 'convert:Write a file anew, with either separator and with six significant digits' 'plot:Draw pressure against temperature as SVG, and print the picture'\''s name. A second plot of the file goes to OUT-2.svg, and so on; the plots of several files go into one picture')
    _describe verb found
    return
fi
if (( CURRENT == 3 )) && [[ $words[2] == dfa ]]; then
    found=('show:Show the wells and their stations by depth' 'convert:Write the wells and their stations with commas, a row for each station')
    _describe verb found
    return
fi
if (( CURRENT == 3 )) && [[ $words[2] == mfl ]]; then
    found=('show:Show the fluid of an MFL file: its components, coefficients and streams. '\''deck convert'\'' writes it as a deck')
    _describe verb found
    return
fi
case "$words[2] $words[3]" in
'deck show')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--show-units=[Units of what is shown; those of the deck, unless given]:choice:(metric field)' '--all[Show all rows of long tables]' '--verbose[Tell which keywords of the deck are passed over]' '--json[Show everything as JSON, in model units, for programs]' '--csv[Show the tables with commas, for spreadsheets]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'deck convert')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--to-units=[Units to write; metric, unless given]:choice:(metric field)' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--temperature=[Reservoir temperature to write, with its unit\: 160F, 71.1C or 344.3K. That of the deck, unless given]:DEGREES:_files' '--runspec[Put a RUNSPEC section at the head of the deck]' '--verbose[Tell which keywords of the deck are passed over]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'deck diff')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--tolerance=[Numbers that differ by no more than this, relative to the larger one, count as the same; 1e-6, unless given]:NUMBER:_files' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--json[Show everything as JSON, in model units, for programs]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'blackoil show')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--all[Show all rows of long tables]' '--json[Show everything as JSON, in model units, for programs]' '--csv[Show the tables with commas, for spreadsheets]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'blackoil convert')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--to=[Form to write. Where it isn'\''t given, csv for a name that ends in .csv, and else keywords. The numbers of csv are metric always]:choice:(keywords csv)' '--to-units=[Units to write; metric, unless given]:choice:(metric field)' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--region=[The region to take from a file of several. Unless given, all of them go into keywords, and the first one into csv]:NUMBER:_files' '--tables=[Tables to write\: live oil as PVTO or dead oil as PVDO, wet gas as PVTG or dry gas as PVDG. auto, unless given\: those of the file. All rows go into these tables]:choice:(auto live-wet live-dry dead-wet dead-dry)' '--high-precision[Write more decimals]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'blackoil diff')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--tolerance=[Numbers that differ by no more than this, relative to the larger one, count as the same; 1e-6, unless given]:NUMBER:_files' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--json[Show everything as JSON, in model units, for programs]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'blackoil plot')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--title=[The title of the picture]:TEXT:_files' '--size=[Width and height of the picture in pixels, from 240x180 on; 960x600, unless given, or what several panels take]:WxH:_files' '--x-range=[The numbers at both ends of the horizontal axis, as shown; where it isn'\''t given, all that is drawn fits]:A\:B:_files' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'compositions show')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--all[Show all rows of long tables]' '--json[Show everything as JSON, in model units, for programs]' '--csv[Show the tables with commas, for spreadsheets]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'kvalues show')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--all[Show all rows of long tables]' '--json[Show everything as JSON, in model units, for programs]' '--csv[Show the tables with commas, for spreadsheets]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'kvalues convert')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--to=[Form to write. Where it isn'\''t given, csv for a name that ends in .csv, and else keywords. The numbers of csv are metric always]:choice:(keywords csv)' '--to-units=[Units to write; metric, unless given]:choice:(metric field)' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--high-precision[Write more decimals]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'kvalues diff')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--tolerance=[Numbers that differ by no more than this, relative to the larger one, count as the same; 1e-6, unless given]:NUMBER:_files' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--json[Show everything as JSON, in model units, for programs]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'kvalues plot')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--title=[The title of the picture]:TEXT:_files' '--size=[Width and height of the picture in pixels, from 240x180 on; 960x600, unless given, or what several panels take]:WxH:_files' '--x-range=[The numbers at both ends of the horizontal axis, as shown; where it isn'\''t given, all that is drawn fits]:A\:B:_files' '--y-range=[The same of the vertical axis]:A\:B:_files' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'thermal show')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--json[Show everything as JSON, in model units, for programs]' '--csv[Show the tables with commas, for spreadsheets]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'thermal convert')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--to=[Form to write. Where it isn'\''t given, csv for a name that ends in .csv, and else keywords. The numbers of csv are metric always]:choice:(keywords csv)' '--to-units=[Units to write; metric, unless given]:choice:(metric field)' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--high-precision[Write more decimals]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'depth show')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--all[Show all rows of long tables]' '--json[Show everything as JSON, in model units, for programs]' '--csv[Show the tables with commas, for spreadsheets]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'depth convert')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--table=[The tables to write\: compositions (ZMFVD); saturation pressures (PBVD, PDVD); or gas-oil and oil-gas ratios (RSVD, RVVD), which are those of the file. Unless given, compositions of a depth run, and all tables of a file that has tables]:choice:(compositions saturation ratios)' '--to=[Form to write. Where it isn'\''t given, csv for a name that ends in .csv, and else keywords. The numbers of csv are metric always]:choice:(keywords csv)' '--to-units=[Units to write; metric, unless given]:choice:(metric field)' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'depth plot')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--contact=[Depth of the contact to draw, in the units that are shown. That of the file, unless given]:DEPTH:_files' '--title=[The title of the picture]:TEXT:_files' '--size=[Width and height of the picture in pixels, from 240x180 on; 960x600, unless given, or what several panels take]:WxH:_files' '--y-range=[The same of the vertical axis]:A\:B:_files' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'envelope show')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--json[Show everything as JSON, in model units, for programs]' '--csv[Show the tables with commas, for spreadsheets]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'envelope convert')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--to=[What to write behind each cell. Where it isn'\''t given, commas for a name that ends in .csv, and else tabs]:choice:(comma tab)' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'envelope plot')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--title=[The title of the picture]:TEXT:_files' '--size=[Width and height of the picture in pixels, from 240x180 on; 960x600, unless given, or what several panels take]:WxH:_files' '--x-range=[The numbers at both ends of the horizontal axis, as shown; where it isn'\''t given, all that is drawn fits]:A\:B:_files' '--y-range=[The same of the vertical axis]:A\:B:_files' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'dfa show')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--ft=[The file with the pressures. Unless given, it is beside IN, with FT.txt in place of the last seven characters of its name]:FILE:_files' '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--all[Show all rows of long tables]' '--json[Show everything as JSON, in model units, for programs]' '--csv[Show the tables with commas, for spreadsheets]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'dfa convert')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--ft=[The file with the pressures. Unless given, it is beside IN, with FT.txt in place of the last seven characters of its name]:FILE:_files' '--to-units=[Units to write; metric, unless given]:choice:(metric field)' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'mfl show')
    shift 2 words
    (( CURRENT -= 2 ))
    _arguments -S '--show-units=[Units of what is shown; metric, unless given]:choice:(metric field)' '--all[Show all rows of long tables]' '--json[Show everything as JSON, in model units, for programs]' '--csv[Show the tables with commas, for spreadsheets]' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
'check'*)
    shift 1 words
    (( CURRENT -= 1 ))
    _arguments -S '--format=[The format of the files. Found from their content, unless given]:choice:(deck blackoil compositions kvalues thermal depth envelope dfa mfl)' '--from-units=[Units of the file that is read. auto, unless given\: what the file says]:choice:(auto metric field)' '--strict[Count warnings as errors\: nothing is written, and the exit status is 1]' '*:file:_files' ;;
esac
