% A gallery of the package at work: every node kind in a row, then a row of
% effects, shown in a viewer window and written to vor2-gallery.png in the
% temporary folder. Run it with ./scripts/octave.sh examples/octave/gallery.m,
% or at the prompt of ./scripts/octave.sh, to keep the window live.
scene = VOR2.Scene();
background = scene.Background;
background.Color = [0.96 0.96 0.94];
scene.Background = background;

% A draw style of a fill colour and an outline, as a copied value.
function style = styled(node, fill, width)
  style = node.DrawStyle;
  style.Fill = VOR2.Fill(fill);
  style.Stroke = VOR2.Stroke([0.15 0.15 0.2], width);
end

function node = place(scene, node, fill, x, y)
  node.DrawStyle = styled(node, fill, 1.5);
  node.Position = [x y];
  node.Selectable = true;
  node.Movable = true;
  scene.addNode(node);
end

% Row 1: the node kinds.
place(scene, VOR2.RectNode([0 0 80 50]), [0.3 0.5 0.9], 0, 0);
place(scene, VOR2.RoundedRectNode([0 0 80 50], 12), [0.9 0.6 0.2], 100, 0);
place(scene, VOR2.EllipseNode([0 0 80 50]), [0.4 0.8 0.4], 200, 0);
star = VOR2.Shape();
for k = 0:9
  r = 28 * (1 - 0.55 * mod(k, 2));
  a = -pi / 2 + k * pi / 5;
  p = [40 + r * cos(a), 25 + r * sin(a)];
  if k == 0, star.moveTo(p); else, star.lineTo(p); end
end
star.closeSubpath();
place(scene, VOR2.ShapeNode(star), [0.95 0.8 0.1], 300, 0);
place(scene, VOR2.ClosedCurvedPathNode([0 25; 40 0; 80 25; 40 50]), [0.7 0.4 0.8], 400, 0);

line = place(scene, VOR2.OpenLinearPathNode([0 40; 25 10; 50 40; 75 10]), [1 1 1], 500, 0);
ending = line.EndDecoration;            % a value: the arrow head at the end
ending.Node = VOR2.ClosedLinearPathNodes([0 -6; 12 0; 0 6]);
line.EndDecoration = ending;

title = VOR2.TextNode('VOR2 from Octave', [0 -30]);
scene.addNode(title);

% Row 2: effects on plain rectangles; one glow shared by two nodes.
glow = VOR2.EffectGlow();
glow.Color = [1 0.7 0.1];
glow.Spread = int32(8);
shadow = VOR2.EffectShadow();
shadow.Distance = [6 6];
overlay = VOR2.EffectColorOverlay();
overlay.Color = [0.9 0.1 0.1];
overlay.Opacity = 0.4;
outline = VOR2.EffectStroke(VOR2.Stroke([0.1 0.3 0.9], 4), 'Outer');
effects = {glow, shadow, overlay, outline, glow};
for k = 1:numel(effects)
  node = place(scene, VOR2.RectNode([0 0 80 50]), [0.85 0.88 0.95], (k - 1) * 110, 100);
  node.Effects.add(effects{k});
end

% Container with children that move with it.
box = place(scene, VOR2.ContainerNode(), [1 1 1], 560, 100);
for k = 0:2
  child = VOR2.RectNode([k * 22 0 18 18]);
  child.DrawStyle = styled(child, [0.2 0.6 0.6], 1);
  child.Parent = box;
end

image = scene.render();                 % height x width x 4 uint8, red green blue alpha
file = fullfile(tempdir(), 'vor2-gallery.png');
imwrite(image(:, :, 1:3), file);
printf('%s: %d x %d pixels, %d nodes\n', file, size(image, 2), size(image, 1), numel(scene.nodes()));

viewer = VOR2.Viewer(scene);
viewer.showAt([100 100 760 320]);
viewer.Canvas.zoomToSceneRect();
