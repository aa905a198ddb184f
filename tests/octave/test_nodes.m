% The node kinds at the prompt: each one made, a property read back after
% it is set, and a method of its own.
s = VOR2.Scene();

c = VOR2.ContainerNode();
assert(isa(c, 'VOR2.Node'));
c.Opacity = 0.25;
assert(c.Opacity, 0.25);
child = VOR2.RectNode([0 0 5 5]);
child.Parent = c;
assert(numel(c.Children), 1);
assert(child.Parent == c);
child.unparent();
assert(isempty(c.Children));

cmp = VOR2.CompositeNode();
cmp.Position = [3 4];
assert(cmp.Position, [3 4]);
assert(cmp.isOfType('VOR2.CompositeNode') && cmp.isOfType('Node') && ~cmp.isOfType('RectNode'));

rr = VOR2.RoundedRectNode([1 2 30 40], 5);
assert(rr.Rect, [1 2 30 40]);
rr.Radius = 7;
assert(rr.Radius, 7);
assert(rr.Width, 30, 1e-9);

ln = VOR2.LineNode([0 0], [10 5]);
ln.End = [20 -5];
assert(ln.Start, [0 0]);
assert(ln.End, [20 -5]);
assert(ln.Width >= 20 && ln.Height >= 5);

el = VOR2.EllipseNode([0 0 20 10]);
assert(el.Center, [10 5]);
el.Center = [0 0];
assert(el.Size, [20 10]);
el.Size = [4 2];
assert(el.Size, [4 2]);
assert(el.Center, [-8 -4]);

im = VOR2.ImageNode();
assert(im.IsNullImage);
assert(im.ImageNaturalSize, [0 0]);
im.Size = [10.5 3];
assert(im.Size, [10.5 3]);
im.setSizeToImageNaturalSize();
assert(im.Size, [0 0]);

% An image file sets the natural size, and the shown size with it.
file = [tempname() '.png'];
imwrite(uint8(zeros(8, 16, 3)), file);
cleanup = onCleanup(@() delete(file));
fromFile = VOR2.ImageNode(file);
assert(~fromFile.IsNullImage);
assert(fromFile.ImageNaturalSize, [16 8]);
assert(fromFile.Size, [16 8]);
fromFile.Size = [4 2];
assert(fromFile.BoundingRect(3:4) >= [4 2] & fromFile.BoundingRect(3:4) < [8 4]);
fromFile.Source = [file '.missing'];
assert(fromFile.IsNullImage);

cu = VOR2.CustomNode();
cu.Visible = false;
assert(~cu.Visible);
assert(cu.BoundingRect, [0 0 0 0]);

sh = VOR2.Shape();
sh.addRect([0 0 10 10]);
sn = VOR2.ShapeNode(sh);
assert(sn.BoundingRect, [0 0 10 10]);
% Reading the shape gives a copy: change it and assign it back.
copy = sn.Shape;
assert(copy ~= sh);
copy.addRect([20 20 5 5]);
assert(sn.BoundingRect, [0 0 10 10]);
sn.Shape = copy;
assert(sn.BoundingRect, [0 0 25 25]);

% The transform is the node's 3x3 matrix; translate moves it by dx, dy.
cmp.Transform = eye(3);
cmp.translate(2, 3);
assert(cmp.Transform, [1 0 2; 0 1 3; 0 0 1]);
cmp.scale(2);
assert(cmp.Transform(1:2, 1:2), [2 0; 0 2]);

% Flags, tags and the cache type by name.
rr.Selectable = true;
rr.Selected = true;
assert(rr.Selected);
rr.addTag('a');
rr.addTag('b');
rr.removeTag('a');
assert(rr.tags(), {'b'});
rr.removeAllTags();
assert(isempty(rr.tags()));
rr.CacheType = 'ChildrenTree';
assert(rr.CacheType, 'ChildrenTree');
expect_error(@() set_property(rr, 'CacheType', 'Everything'), 'VOR2:ExpectedEnumValue', ...
             'Expected one of the following values: None, Self, ChildrenTree');
assert(rr.CacheType, 'ChildrenTree');

% Layout flags by name.
rr.setLayoutConstraintFlag('FlexibleWidth', true);
assert(rr.getLayoutConstraintFlag('FlexibleWidth'));
assert(~rr.getLayoutConstraintFlag('Left'));
expect_error(@() rr.setLayoutConstraintFlag('Middle', true), 'VOR2:ExpectedEnumValue');

% A node of a composite fetched from Children is of its own class.
t = VOR2.TextNode('label');
p = VOR2.ClosedLinearPathNodes([0 0; 10 0; 5 5]);
t.Parent = cmp;
p.Parent = cmp;
s.addNode(cmp);
clear t p
kids = cmp.Children;
assert(class(kids{1}), 'VOR2.TextNode');
assert(class(kids{2}), 'VOR2.ClosedLinearPathNodes');
assert(kids{2}.isOfType('ClosedLinearPathNodes') && kids{2}.isOfType('VOR2.LinearPathNode'));
assert(class(s.nodes(){1}), 'VOR2.CompositeNode');

% The default object is a node on nothing: calls on it fail as on an empty value.
d = VOR2.Node.getDefaultObject();
assert(isa(d, 'VOR2.Node'));
expect_error(@() d.Position, 'TARVO:tcos_factory:null_self', 'Attempt to call a method on an empty value');
