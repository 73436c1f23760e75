# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of zelpane's command line for fish.
function __zelpane_batch
    set -l words (commandline -opc)
    test (count $words) -gt 1; and test "$words[2]" = --batch
end
complete -c zelpane -n 'not __zelpane_batch' -l batch -d 'Convert a folder of images'
complete -c zelpane -n 'not __zelpane_batch' -l new -d 'Begin with a new image'
complete -c zelpane -n 'not __zelpane_batch' -l open -d 'Begin with the panel that opens an image'
complete -c zelpane -n 'not __zelpane_batch' -l image-processor -d 'Begin with the image processor'
complete -c zelpane -n 'not __zelpane_batch' -l script -r -F -d 'Play automation commands'
complete -c zelpane -n 'not __zelpane_batch' -l show -d 'Show the windows of a script'
complete -c zelpane -n 'not __zelpane_batch' -l offscreen -d 'Need no display'
complete -c zelpane -n 'not __zelpane_batch' -l offer-recovery -d 'Ask about work that a crash left'
complete -c zelpane -n 'not __zelpane_batch' -l no-start-choice -d 'Do not ask at the start'
complete -c zelpane -n 'not __zelpane_batch' -l thumbnail -d 'Write a small PNG picture'
complete -c zelpane -n 'not __zelpane_batch' -l decode -d 'Read pictures for another Zelpane'
complete -c zelpane -n 'not __zelpane_batch' -l version -d 'Print the version'
complete -c zelpane -s h -l help -d 'Print a summary of the options'
complete -c zelpane -n __zelpane_batch -f -a '(__fish_complete_directories)'
complete -c zelpane -n __zelpane_batch -l tiff -d 'Write NAME.tiff'
complete -c zelpane -n __zelpane_batch -l jpeg -d 'Write NAME.jpg'
complete -c zelpane -n __zelpane_batch -l fit -x -d 'Resize to fit a box, WxH'
complete -c zelpane -n __zelpane_batch -l watermark -r -F -d 'Lay an image over each'
complete -c zelpane -n __zelpane_batch -l at -x -d 'Lower left corner of the watermark, X,Y'
complete -c zelpane -n __zelpane_batch -l place -x -a 'lower-left lower-right upper-left upper-right centre' -d 'Corner of the watermark in each image'
complete -c zelpane -n __zelpane_batch -l keep-damaged -d 'Write what can be read of a damaged source'
complete -c zelpane -n __zelpane_batch -l strip -x -a private -d 'Leave place, device and names out'
complete -c zelpane -n __zelpane_batch -l opacity -x -d 'Opacity of the watermark in percent'
complete -c zelpane -n __zelpane_batch -l jobs -x -d 'Images at a time'
complete -c zelpane -n __zelpane_batch -l shard -x -a auto/ -d 'Only a share of the images, K/N or auto/N'
complete -c zelpane -n __zelpane_batch -l skip-existing -d 'Leave images alone whose results exist'
complete -c zelpane -n __zelpane_batch -l dry-run -d 'Print what would be written'
