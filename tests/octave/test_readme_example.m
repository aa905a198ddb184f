% The README's Octave example runs as written, and leaves what it says.
here = fileparts(mfilename('fullpath'));
run(fullfile(here, '..', '..', 'examples', 'octave', 'first_scene.m'));
assert(any(cellfun(@(n) n == box, hits)));
assert(label.Parent == box);
assert(box.DrawStyle.Fill.Color, [0.2 0.4 1.0 1.0], 1 / 255);
assert(box.DrawStyle.Stroke.Width, 2);
assert(viewer.Canvas.Scale > 0);
viewer.close();
