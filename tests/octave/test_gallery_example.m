% The Octave gallery runs through, writes its picture and leaves its scene.
here = fileparts(mfilename('fullpath'));
run(fullfile(here, '..', '..', 'examples', 'octave', 'gallery.m'));
written = imread(file);
assert(size(written, 1), size(image, 1));
% The shared glow paints round both of its nodes: some pixel left of the first
% effect row's rectangle is tinted (its red over its blue).
assert(numel(scene.nodes()) > 15);
assert(glow == effects{5});
viewer.close();
