# What mahlberg takes on the command line, for fish.
set -l windows "not __fish_seen_subcommand_from evaluate food"

complete -c mahlberg -f
complete -c mahlberg -n "not __fish_seen_subcommand_from food" -k -a "(__fish_complete_suffix .daten)"
complete -c mahlberg -n "$windows" -a evaluate -d "Judge a meal plan"
complete -c mahlberg -n "$windows" -a food -d "Print what a food holds"
complete -c mahlberg -s h -l help -d "Print the options"
complete -c mahlberg -s v -l version -d "Print the version"
complete -c mahlberg -l language -x -a "de en" -d "Language of windows and texts"
complete -c mahlberg -l data-dir -x -a "(__fish_complete_directories)" -d "Keep foods and plan there"
complete -c mahlberg -n "$windows" -l tour -x -a "(__fish_complete_directories)" -d "Take the tour, leave its pictures there"
complete -c mahlberg -n "not $windows" -l format -x -a "text csv json" -d "How to print"
complete -c mahlberg -n "__fish_seen_subcommand_from evaluate" -l energy -x -d "Energy need of a day, in kcal"
complete -c mahlberg -n "__fish_seen_subcommand_from food" -l own -d "Look among own foods only"
