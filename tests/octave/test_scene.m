% The scene at the prompt: identity, selection, queries, focus and renders.
s = VOR2.Scene();
a = VOR2.RectNode([0 0 10 10]);
b = VOR2.RectNode([0 0 10 10]);
b.Position = [50 50];
s.addNode(a);
s.addNode(b);

% Fetching the scene again and again gives the one object and no new entries.
entries = __vor2__('count');
first = a.Scene;
second = b.Scene;
assert(first == s && second == s);
assert(__vor2__('count'), entries);
clear first second

% Queries by rectangle and point return the right nodes. (A selected node's
% outline widens it, so these come before the selection.)
within = s.nodesWithinRect([-5 -5 30 30]);
assert(numel(within), 1);
assert(within{1} == a);
% A node half inside is not within, but intersects.
assert(numel(s.nodesWithinRect([-5 -5 58 58])), 1);
assert(numel(s.nodesWithinRect([-5 -5 100 100])), 2);
assert(numel(s.nodesIntersectingRect([5 5 50 50])), 2);
at = s.nodesAtScenePos([55 50]);
assert(numel(at), 1);
assert(at{1} == b);
assert(isempty(s.nodesAtScenePos([30 30])));
child = VOR2.RectNode([0 0 2 2]);
child.Parent = b;
child.addTag('leaf');
tagged = s.nodesWithTag('leaf');
assert(numel(tagged), 1);
assert(tagged{1} == child);
bounds = s.Bounds;
assert(bounds(1) <= 0 && bounds(2) <= 0 && bounds(1) + bounds(3) >= 60 && bounds(2) + bounds(4) >= 60);

% Selection set from the script reads back; only selectable nodes take it. An
% unfilled rectangle is hit on its outline.
s.setSelection([5 0], true);
assert(isempty(s.selection()));
a.Selectable = true;
b.Selectable = true;
s.setSelection([5 0], true);
sel = s.selection();
assert(numel(sel), 1);
assert(sel{1} == a);
s.setSelection([-100 -100 300 300], true);
assert(numel(s.selection()), 2);
s.setSelection([40 40 30 30], false);
sel = s.selection();
assert(numel(sel), 1);
assert(sel{1} == a && sel{1}.Selected);
% A bad point and rectangle both fail; the first conversion's error is told.
expect_error(@() s.setSelection([1 2 3], true), 'DPoint:InvalidValue');
assert(numel(s.selection()), 1);

% Focus: a rectangle does not take it, so setting it leaves the scene without
% focus; a value that is not a node is refused.
s.FocusNode = b;
assert(isempty(s.FocusNode));
s.clearFocus();
assert(isempty(s.FocusNode));
expect_error(@() set_property(s, 'FocusNode', 'b'), 'VOR2:WrongType', 'Expected VOR2.Node, got 1x1 char');

s.UseNodeSelection = false;
assert(~s.UseNodeSelection);
s.PerformanceTracking = true;
assert(s.PerformanceTracking);
assert(~s.hasToolOverrideCursor());

% Renders are H x W x 4 uint8 images (red, green, blue, alpha), one pixel a
% scene unit, opaque.
t = VOR2.Scene();
img = t.render();
assert(class(img), 'uint8');
assert(size(img), [40 40 4]);
assert(all(img(:) == 255));
assert(size(t.render(0)), [0 0 4]);
r = VOR2.RectNode([0 0 30 20]);
t.addNode(r);
img = t.render(0, [-5 -5 40 30]);
assert(size(img), [30 40 4]);
% The node's black outline runs along its top edge at row 6, column 6 onwards;
% its inside and the margin stay white.
assert(squeeze(img(6, 15, :))', uint8([0 0 0 255]));
assert(squeeze(img(15, 15, :))', uint8([255 255 255 255]));
assert(squeeze(img(2, 2, :))', uint8([255 255 255 255]));
% The whole scene: its bounds with the margin on every side.
assert(t.Bounds, [0 0 30 20]);
assert(size(t.render(3)), [26 36 4]);

% No tool has asked for a cursor: the tools' cursor is absent.
assert(~s.hasToolOverrideCursor());
assert(isempty(s.ToolOverrideCursor));
